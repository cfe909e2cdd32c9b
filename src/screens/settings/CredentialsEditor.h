#pragma once

#include "data/APICredentials.h"
#include "screens/ScreenParts.h"
#include "screens/components/Question.h"

#include <functional>
#include <string>
#include <vector>

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// The form in which the key is entered, saved, tried and removed. The key file's text stays in here: a view
/// learns only whether there is one.
class CredentialsEditor : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    Q_PROPERTY(QString issuerID READ issuerID WRITE setIssuerID NOTIFY valuesChanged)
    Q_PROPERTY(QString keyID READ keyID WRITE setKeyID NOTIFY valuesChanged)
    Q_PROPERTY(QString vendorNumber READ vendorNumber WRITE setVendorNumber NOTIFY valuesChanged)
    Q_PROPERTY(QUrl fileFolder READ fileFolder CONSTANT)
    Q_PROPERTY(bool hasKey READ hasKey NOTIFY valuesChanged)
    Q_PROPERTY(bool isComplete READ isComplete NOTIFY valuesChanged)
    Q_PROPERTY(bool canRemove READ canRemove NOTIFY canRemoveChanged)
    Q_PROPERTY(bool isTesting READ isTesting NOTIFY outcomeChanged)
    Q_PROPERTY(QString status READ status NOTIFY outcomeChanged)
    Q_PROPERTY(bool statusIsError READ statusIsError NOTIFY outcomeChanged)
    Q_PROPERTY(QStringList otherStores READ otherStores NOTIFY otherStoresChanged)
    Q_PROPERTY(vantrell::Question* question READ question CONSTANT)
    Q_PROPERTY(QString testResult READ testResult NOTIFY outcomeChanged)

  public:
    explicit CredentialsEditor(const ScreenParts& parts, QObject* parent = nullptr);

    /// To be called whenever the form comes into sight: it begins with what was entered and not saved, else
    /// with what the engine holds, if anything.
    void appear();

    [[nodiscard]] QString issuerID() const { return QString::fromStdString(values_.issuerID); }
    void setIssuerID(const QString& text) { set(values_.issuerID, text); }
    [[nodiscard]] QString keyID() const { return QString::fromStdString(values_.keyID); }
    void setKeyID(const QString& text) { set(values_.keyID, text); }
    [[nodiscard]] QString vendorNumber() const { return QString::fromStdString(values_.vendorNumber); }
    void setVendorNumber(const QString& text) { set(values_.vendorNumber, text); }

    /// Where browsers put what was downloaded.
    [[nodiscard]] QUrl fileFolder() const;
    [[nodiscard]] bool hasKey() const { return !values_.privateKeyPEM.empty(); }
    /// Takes the key from a file of at most 64 KiB, and its ID from a name like "AuthKey_<Key ID>.p8". What
    /// is imported has to be saved yet.
    Q_INVOKABLE void importKey(const QUrl& file);

    /// None of the four is empty, so that they can be saved and tried.
    [[nodiscard]] bool isComplete() const { return values_.isComplete(); }
    [[nodiscard]] bool canRemove() const { return parts_.engine.hasCredentials(); }
    /// Saves, and fetches everything if nothing was fetched yet. Asks first before the reports of two vendor
    /// numbers come into one store.
    Q_INVOKABLE void save();
    /// Saves, asking as above, and tries the key with one request.
    Q_INVOKABLE void test();
    /// Asks first. Leaves the key in the form if it could not be removed.
    Q_INVOKABLE void removeKey();

    [[nodiscard]] QStringList otherStores() const;
    /// `place` is that of one of `otherStores`.
    Q_INVOKABLE void openOther(int place);
    [[nodiscard]] Question* question() { return &question_; }

    [[nodiscard]] bool isTesting() const { return isTesting_; }
    [[nodiscard]] QString status() const { return status_; }
    [[nodiscard]] bool statusIsError() const { return statusIsError_; }
    [[nodiscard]] QString testResult() const { return testResult_; }

  Q_SIGNALS:
    void valuesChanged();
    void canRemoveChanged();
    void outcomeChanged();
    void otherStoresChanged();

  private:
    [[nodiscard]] static QCoro::Task<> runTest(Account& account, QPointer<CredentialsEditor> editor,
                                               int appearance);

    void set(std::string& value, const QString& text);
    [[nodiscard]] bool isSaved();
    void removeNow();
    void saveNow();
    void testNow();
    void unlessMixed(const std::function<void()>& go);
    void openApart();
    void trim();
    void say(const QString& status, bool isError);
    void tested(const std::string& result, int appearance);

    ScreenParts parts_;
    APICredentials values_;
    bool isEdited_ = false;  ///< since it was read or saved
    Question question_;
    std::vector<int> otherStores_;
    bool isTesting_ = false;
    QString status_;
    bool statusIsError_ = false;
    QString testResult_;
    int appearance_ = 0;  ///< a test that was begun in an earlier one has nothing to tell
};

}  // namespace vantrell
