#include "screens/settings/CredentialsEditor.h"

#include "base/Whitespace.h"
#include "data/CredentialsKeychain.h"
#include "files/TextFile.h"
#include "screens/components/ShownText.h"
#include "screens/settings/UserFolder.h"
#include "screens/words/RunWords.h"

#include <utility>

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace vantrell {
namespace {

constexpr std::uintmax_t maxKeyFileBytes = std::uintmax_t{64} << 10U;

std::variant<std::string, FileReadError> keyFileText(const QUrl& file) {
    if (!file.isLocalFile()) {
        return FileReadError{
            CredentialsEditor::tr("Only a file on this computer can be read.").toStdString()};
    }
    return readTextFile(QFile::encodeName(file.toLocalFile()).toStdString(), maxKeyFileBytes);
}

}  // namespace

CredentialsEditor::CredentialsEditor(const ScreenParts& parts, QObject* parent)
    : QObject(parent), parts_(parts) {
    connect(&parts.engine.account(), &Account::hasCredentialsChanged, this,
            &CredentialsEditor::canRemoveChanged);
}

void CredentialsEditor::appear() {
    ++appearance_;
    isTesting_ = false;
    testResult_.clear();
    question_.dismiss();
    if (isEdited_) {
        say(tr("What you have entered isn't saved yet."), false);
    } else {
        replace(values_, parts_.engine.account().credentials());
        say({}, false);
    }
    if (parts_.otherStores != nullptr) {
        otherStores_ = parts_.otherStores->others();
        Q_EMIT otherStoresChanged();
    }
    Q_EMIT valuesChanged();
}

QUrl CredentialsEditor::fileFolder() const {
    return QUrl::fromLocalFile(
        userFolder(QStandardPaths::writableLocation(QStandardPaths::DownloadLocation)).path());
}

void CredentialsEditor::importKey(const QUrl& file) {
    auto read = keyFileText(file);
    if (const auto* error = std::get_if<FileReadError>(&read)) {
        say(tr("Could not read the key file: %1").arg(shownText(error->description, messageCharacters)),
            true);
        return;
    }
    values_.privateKeyPEM = std::get<std::string>(std::move(read));
    isEdited_ = true;
    const QString name = QFileInfo(file.toLocalFile()).completeBaseName();
    const QString prefix = QStringLiteral("AuthKey_");
    if (name.startsWith(prefix)) {
        values_.keyID = name.mid(prefix.size()).toStdString();
    }
    Q_EMIT valuesChanged();
    say(tr("Key file read. “Save” puts it into your desktop's keyring and nowhere else; you can delete the "
           "download then."),
        false);
}

QStringList CredentialsEditor::otherStores() const {
    QStringList names;
    for (const int store : otherStores_) {
        names += tr("Open Store %1").arg(fromUtf8(parts_.locale.count(store)));
    }
    return names;
}

void CredentialsEditor::openOther(int place) {
    if (place >= 0 && static_cast<std::size_t>(place) < otherStores_.size()) {
        const auto problem = parts_.otherStores->open(otherStores_[static_cast<std::size_t>(place)]);
        say(problem ? shownText(*problem, messageCharacters) : QString(), problem.has_value());
    }
}

void CredentialsEditor::save() {
    if (isComplete()) {
        unlessMixed([this] { saveNow(); });
    }
}

void CredentialsEditor::test() {
    if (isComplete() && !isTesting_) {
        unlessMixed([this] { testNow(); });
    }
}

void CredentialsEditor::unlessMixed(const std::function<void()>& go) {
    trim();
    if (!parts_.engine.isOfOtherVendor(values_.vendorNumber)) {
        go();
        return;
    }
    const auto mix = [this, go] {
        parts_.engine.takeVendor(values_.vendorNumber);
        go();
    };
    question_.ask(
        tr("The stored reports came with another vendor number. With %1 the reports of both would count "
           "together, and days that are stored would not be fetched again.")
            .arg(shownText(values_.vendorNumber)),
        {tr("Count Together"), mix},
        parts_.otherStores == nullptr
            ? Question::Way()
            : Question::Way{tr("Open a Store of Its Own"), [this] { openApart(); }});
}

void CredentialsEditor::openApart() {
    if (const auto problem = parts_.otherStores->openWith(values_)) {
        say(shownText(*problem, messageCharacters), true);
        return;
    }
    isEdited_ = false;
    appear();
    say(tr("The other store opens in a window of its own, with the key that you entered."), false);
}

void CredentialsEditor::saveNow() {
    if (isSaved()) {
        parts_.tasks.spawn(parts_.engine.backfillIfEmpty());
    }
}

void CredentialsEditor::testNow() {
    if (!isSaved()) {
        return;
    }
    testResult_.clear();
    isTesting_ = true;
    Q_EMIT outcomeChanged();
    parts_.tasks.spawn(runTest(parts_.engine.account(), this, appearance_));
}

void CredentialsEditor::removeKey() {
    question_.ask(
        tr("Remove the key from your desktop's keyring? The stored reports stay. Apple offers a key "
           "for download only once."),
        {tr("Remove"), [this] { removeNow(); }});
}

void CredentialsEditor::removeNow() {
    try {
        parts_.engine.account().remove();
    } catch (const CredentialsError& error) {
        say(tr("Could not remove from your desktop's keyring: %1")
                .arg(shownText(error.what(), messageCharacters)),
            true);
        return;
    }
    replace(values_, {values_.issuerID, values_.keyID, {}, values_.vendorNumber});
    isEdited_ = false;
    Q_EMIT valuesChanged();
    say(tr("Credentials removed from your desktop's keyring."), false);
}

QCoro::Task<> CredentialsEditor::runTest(Account& account, QPointer<CredentialsEditor> editor,
                                         int appearance) {
    const auto test = co_await account.testConnection();
    if (editor != nullptr) {
        editor->tested(connectionText(test).toStdString(), appearance);
    }
}

void CredentialsEditor::tested(const std::string& result, int appearance) {
    if (appearance == appearance_) {
        testResult_ = shownText(result, messageCharacters);
        isTesting_ = false;
        Q_EMIT outcomeChanged();
    }
}

void CredentialsEditor::set(std::string& value, const QString& text) {
    if (text.toStdString() != value) {
        value = text.toStdString();
        isEdited_ = true;
        Q_EMIT valuesChanged();
    }
}

bool CredentialsEditor::isSaved() {
    try {
        parts_.engine.account().save(values_);
    } catch (const CredentialsError& error) {
        say(tr("Could not save to your desktop's keyring: %1")
                .arg(shownText(error.what(), messageCharacters)),
            true);
        return false;
    }
    isEdited_ = false;
    say(tr("Saved to your desktop's keyring."), false);
    return true;
}

void CredentialsEditor::trim() {
    for (std::string* value :
         {&values_.issuerID, &values_.keyID, &values_.vendorNumber, &values_.privateKeyPEM}) {
        *value = std::string(trimWhitespaceAndNewlines(*value));
    }
    Q_EMIT valuesChanged();
}

void CredentialsEditor::say(const QString& status, bool isError) {
    status_ = status;
    statusIsError_ = isError;
    Q_EMIT outcomeChanged();
}

}  // namespace vantrell
