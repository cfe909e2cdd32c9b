#pragma once

#include <string>

#include <QNetworkReply>
#include <QSslError>

namespace vantrell {

/// What a failed exchange tells the user. Qt's own texts are not for that: they hold the whole address.
[[nodiscard]] std::string httpFailureText(QNetworkReply::NetworkError error,
                                          const QList<QSslError>& certificateErrors);

}  // namespace vantrell
