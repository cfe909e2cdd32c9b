#include "ScreenFixture.h"
#include "screens/settings/CredentialsEditor.h"
#include "testing/TemporaryFolder.h"

#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

class CredentialsEditorTest : public ::testing::Test {
  protected:
    CredentialsEditorTest() { editor.appear(); }

    QUrl file(const std::string& name, const std::string& bytes) {
        std::ofstream(folder / name, std::ios::binary) << bytes;
        return url(name);
    }
    QUrl url(const std::string& name) {
        return QUrl::fromLocalFile(QString::fromStdString((folder / name).string()));
    }

    testing::ScreenFixture fixture;
    testing::TemporaryFolder folder;
    CredentialsEditor editor{fixture.parts()};
};

TEST_F(CredentialsEditorTest, BeginsWithWhatTheEngineHolds) {
    EXPECT_EQ(editor.issuerID(), QStringLiteral("issuer"));
    EXPECT_EQ(editor.vendorNumber(), QStringLiteral("6041"));
    EXPECT_TRUE(editor.hasKey());
    EXPECT_EQ(editor.importText(), QStringLiteral("Replace .p8 Key…"));
    EXPECT_TRUE(editor.isComplete());
    EXPECT_EQ(editor.status(), QString());
}

TEST_F(CredentialsEditorTest, TakesTheKeyFromAFile) {
    struct Case {
        const char* file;
        std::string bytes;
        const char* keyID;
        const char* status;
    };
    const std::string read = "Key file read. It stays in the Keychain only — you can delete the download.";
    const Case cases[] = {
        {"AuthKey_7QK2.p8", "pem", "7QK2", read.c_str()},
        {"AuthKey_7QK2.old.p8", "pem", "7QK2.old", read.c_str()},
        {"MyAuthKey_9.p8", "pem", "key", read.c_str()},
        {"AuthKey_9.p8", "a\xFFz", "key", "Could not read the key file: The file is not UTF-8 text."},
        {"AuthKey_9.p8", std::string(65537, 'a'), "key",
         "Could not read the key file: The file is too large."},
    };
    for (const auto& [name, bytes, keyID, status] : cases) {
        SCOPED_TRACE(name);
        editor.appear();
        editor.importKey(file(name, bytes));
        EXPECT_EQ(editor.keyID(), QString::fromUtf8(keyID));
        EXPECT_EQ(editor.status(), QString::fromUtf8(status));
        EXPECT_EQ(editor.statusIsError(), status != read);
    }
    EXPECT_EQ(fixture.engine().credentials().keyID, "key") << "nothing is saved by an import";
}

TEST_F(CredentialsEditorTest, SaysWhyAFileCanNotBeRead) {
    std::filesystem::create_directory(folder / "folder");
    const std::pair<QUrl, const char*> cases[] = {
        {url("missing.p8"), "No such file."},
        {url("folder"), "It is not a file."},
        {QUrl(QStringLiteral("sftp://host/AuthKey_1.p8")), "Only a file on this computer can be read."},
    };
    for (const auto& [file, reason] : cases) {
        editor.importKey(file);
        EXPECT_EQ(editor.status().toStdString(), std::string("Could not read the key file: ") + reason);
        EXPECT_TRUE(editor.statusIsError());
        EXPECT_EQ(editor.keyID(), QStringLiteral("key"));
    }
}

TEST_F(CredentialsEditorTest, SavesWithoutBlanksAroundAndFetchesIfNothingWasFetched) {
    editor.setIssuerID(QStringLiteral(" \t3f7a\n"));
    editor.importKey(file("AuthKey_AB.p8", "\npem\n"));
    editor.save();
    EXPECT_EQ(fixture.engine().credentials(), (APICredentials{"3f7a", "AB", "pem", "6041"}));
    EXPECT_EQ(editor.issuerID(), QStringLiteral("3f7a"));
    EXPECT_EQ(editor.status(), QStringLiteral("Saved to the Keychain."));
    EXPECT_FALSE(fixture.engine().lastRunSummary().empty()) << "a backfill ran";
}

TEST_F(CredentialsEditorTest, DoesNothingWhileAFieldIsEmpty) {
    editor.setVendorNumber(QString());
    EXPECT_FALSE(editor.isComplete());
    editor.save();
    editor.test();
    EXPECT_EQ(fixture.engine().credentials().vendorNumber, "6041");
    EXPECT_TRUE(fixture.requests().empty());
}

TEST_F(CredentialsEditorTest, TestsAndTellsTheResult) {
    bool wasTesting = false;
    QObject::connect(&editor, &CredentialsEditor::outcomeChanged, &editor,
                     [&] { wasTesting |= editor.isTesting() && editor.testResult().isEmpty(); });
    editor.test();
    EXPECT_TRUE(wasTesting);
    EXPECT_FALSE(editor.isTesting());
    EXPECT_TRUE(editor.testResult().startsWith(QStringLiteral("Credentials accepted. ")));
    EXPECT_EQ(fixture.takeRequests(), std::vector<std::string>{"DAILY 2026-11-21"}) << "and no backfill";
}

TEST_F(CredentialsEditorTest, RemovesTheKeyButNotTheFields) {
    fixture.secrets.setUnreadable("The keyring is locked.");
    editor.removeKey();
    EXPECT_EQ(editor.status(), QStringLiteral("Could not remove from the Keychain: The keyring is locked."));
    EXPECT_TRUE(editor.statusIsError() && editor.hasKey() && editor.canRemove());
    fixture.secrets.setUnreadable({});
    editor.removeKey();
    EXPECT_FALSE(editor.canRemove());
    EXPECT_FALSE(editor.hasKey());
    EXPECT_EQ(editor.issuerID(), QStringLiteral("issuer"));
    EXPECT_EQ(editor.status(), QStringLiteral("Credentials removed from the Keychain."));
    EXPECT_FALSE(fixture.engine().hasCredentials());
}

}  // namespace
}  // namespace vantrell
