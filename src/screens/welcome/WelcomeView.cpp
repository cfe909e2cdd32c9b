#include "screens/welcome/WelcomeView.h"

#include "screens/components/HostName.h"
#include "screens/components/ShownText.h"
#include "screens/welcome/InlineMarkup.h"

namespace vantrell {
namespace {

std::vector<WelcomeStep> numbered(const QStringList& texts) {
    std::vector<WelcomeStep> steps;
    for (const QString& text : texts) {
        steps.push_back({.number = QString::number(steps.size() + 1),
                         .styledText = styledText(text),
                         .plainText = unmarkedText(text)});
    }
    return steps;
}

}  // namespace

WelcomeView::WelcomeView(const ScreenParts& parts, QObject* parent)
    : QObject(parent), parts_(parts), credentials_(parts) {
    steps_.show(numbered(
        {tr("In App Store Connect, open **Users and Access → Integrations → App Store Connect API**."),
         tr("Generate a **team key** with the **Finance** role and download its `.p8` file. (An In-App "
            "Purchase key won't work here.)"),
         tr("Copy the **Key ID** and **Issuer ID**, and your **vendor number** from Payments and Financial "
            "Reports.")}));
    connect(&parts.engine.account(), &Account::hasCredentialsChanged, this, &WelcomeView::appear);
    connect(&parts.engine.account(), &Account::problemChanged, this, &WelcomeView::problemChanged);
    appear();
}

QString WelcomeView::problem() const {
    const auto& problem = parts_.engine.account().problem();
    return problem ? tr("Your desktop's keyring could not be read: %1")
                         .arg(shownText(*problem, messageCharacters))
                   : QString();
}

QString WelcomeView::linkAddress() const {
    return webAddress(parts_.origins.keyWebSite, QStringLiteral("/access/integrations/api"));
}

// A key that was saved here is of no concern when the welcome comes back after its removal.
void WelcomeView::appear() {
    if (!parts_.engine.hasCredentials()) {
        credentials_.appear();
    }
}

}  // namespace vantrell
