#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// What stands around one text field of the credentials.
struct CredentialsField {
    Q_GADGET
    QML_VALUE_TYPE(credentialsField)
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(QString prompt MEMBER prompt)
    Q_PROPERTY(QString hint MEMBER hint)

  public:
    QString label;
    QString prompt;  ///< an example
    QString hint;    ///< where the value is found
    bool operator==(const CredentialsField&) const = default;
};

}  // namespace vantrell
