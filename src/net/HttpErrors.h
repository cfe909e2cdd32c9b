#pragma once

#include "net/HttpFailure.h"

#include <QNetworkReply>
#include <QSslError>

namespace vantrell {

/// What an error of Qt's comes to.
[[nodiscard]] HttpFailure httpFailure(QNetworkReply::NetworkError error,
                                      const QList<QSslError>& certificateErrors);

}  // namespace vantrell
