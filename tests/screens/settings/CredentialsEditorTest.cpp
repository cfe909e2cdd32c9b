#include "ScreenFixture.h"
#include "screens/settings/CredentialsEditor.h"
#include "testing/TemporaryFolder.h"

#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
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

TEST_F(CredentialsEditorTest, TakesTheKeyFromAFileOrSaysWhyItCanNot) {
    const std::string read =
        "Key file read. “Save” puts it into your desktop's keyring and nowhere else; you can delete the "
        "download then.";
    const std::string unread = "Could not read the key file: ";
    std::filesystem::create_directory(folder / "folder");
    const struct {
        QUrl file;
        const char* keyID;
        std::string status;
    } cases[] = {
        {file("AuthKey_7QK2.p8", "pem"), "7QK2", read},
        {file("AuthKey_7QK2.old.p8", "pem"), "7QK2.old", read},
        {file("MyAuthKey_9.p8", "pem"), "key", read},
        {file("AuthKey_8.p8", "a\xFFz"), "key", unread + "The file is not UTF-8 text."},
        {file("AuthKey_9.p8", std::string(65537, 'a')), "key", unread + "The file is too large."},
        {url("missing.p8"), "key", unread + "No such file."},
        {url("folder"), "key", unread + "It is not a file."},
        {QUrl(QStringLiteral("sftp://host/AuthKey_1.p8")), "key",
         unread + "Only a file on this computer can be read."},
    };
    for (const auto& [file, keyID, status] : cases) {
        SCOPED_TRACE(file.toString().toStdString());
        CredentialsEditor fresh(fixture.parts());
        fresh.appear();
        fresh.importKey(file);
        EXPECT_EQ(fresh.keyID(), QString::fromUtf8(keyID));
        EXPECT_EQ(fresh.status().toStdString(), status);
        EXPECT_EQ(fresh.statusIsError(), status != read);
    }
    EXPECT_EQ(fixture.engine().account().credentials().keyID, "key") << "nothing is saved by an import";
}

TEST_F(CredentialsEditorTest, SavesWithoutBlanksAroundAndFetchesIfNothingWasFetched) {
    editor.setIssuerID(QStringLiteral(" \t3f7a\n"));
    editor.importKey(file("AuthKey_AB.p8", "\npem\n"));
    editor.appear();
    EXPECT_EQ(editor.status(), QStringLiteral("What you have entered isn't saved yet."));
    editor.save();
    EXPECT_EQ(fixture.engine().account().credentials(), (APICredentials{"3f7a", "AB", "pem", "6041"}));
    EXPECT_EQ(editor.issuerID(), QStringLiteral("3f7a"));
    EXPECT_EQ(editor.status(), QStringLiteral("Saved to your desktop's keyring."));
    EXPECT_TRUE(fixture.engine().lastRun()) << "a backfill ran";
}

class StoresBeside final : public OtherStores {
  public:
    int own() const override { return 1; }
    std::vector<int> others() const override { return {2}; }
    std::optional<std::string> open(int store) override {
        opened += std::to_string(store) + " ";
        return std::nullopt;
    }
    std::optional<std::string> openWith(const APICredentials& key) override {
        opened += key.issuerID + " " + key.vendorNumber + " ";
        return std::nullopt;
    }
    std::string opened;
};

TEST_F(CredentialsEditorTest, AsksBeforeTheReportsOfTwoVendorNumbersComeIntoOneStore) {
    StoresBeside stores;
    ScreenParts parts = fixture.parts();
    parts.otherStores = &stores;
    CredentialsEditor form(parts);
    form.appear();
    const auto vendor = [this] { return fixture.engine().account().credentials().vendorNumber; };
    form.save();
    EXPECT_EQ(form.question()->text(), QString());
    fixture.engine().takeVendor("6041");
    form.setVendorNumber(QStringLiteral("7777 "));
    form.test();
    EXPECT_THAT(form.question()->text().toStdString(), ::testing::HasSubstr("With 7777"));
    form.question()->goOtherWay();
    EXPECT_EQ(stores.opened, "issuer 7777 ");
    EXPECT_EQ(form.vendorNumber(), QStringLiteral("6041")) << "this store keeps its key";
    form.openOther(0);
    EXPECT_EQ(stores.opened, "issuer 7777 2 ");
    form.setVendorNumber(QStringLiteral("7777"));
    form.save();
    EXPECT_EQ(vendor(), "6041");
    form.question()->agree();
    EXPECT_EQ(vendor(), "7777");
    EXPECT_TRUE(fixture.engine().isOfOtherVendor("6041"));
}

}  // namespace
}  // namespace vantrell
