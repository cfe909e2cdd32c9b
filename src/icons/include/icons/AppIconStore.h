#pragma once

#include "base/Lifetime.h"
#include "files/Defaults.h"
#include "icons/IconLookup.h"
#include "locale/Locale.h"
#include "net/HttpClient.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <QObject>
#include <qcoro/qcorotask.h>

namespace vantrell {

/// Knows where the icons of apps are found. The addresses are kept in the settings for good; what isn't known
/// is asked of the App Store's public lookup service, each app at most once. All screens share one store, and
/// each names the apps that it is about to show as often as it likes. Main thread only.
class AppIconStore : public QObject {
    Q_OBJECT

  public:
    /// What a store gets from the outside; all of it must outlive the store.
    struct Parts {
        HttpClient& http;
        Defaults& defaults;
        const Locale& locale;
    };

    /// `lookupService` is a scheme and a host with no path.
    AppIconStore(const Parts& parts, std::string lookupService);

    /// By the app's Apple identifier. It only grows.
    [[nodiscard]] const IconAddresses& urls() const { return urls_; }

    /// Returns when all lookups of this call are over, or the store is gone. A failure costs nothing but the
    /// icon: where an answer came there is no further try by this store, else the next call is one.
    [[nodiscard]] QCoro::Task<> loadIcons(std::vector<std::int64_t> appleIDs);

  Q_SIGNALS:
    void urlsChanged();

  private:
    /// A request's worth of apps. False if the store is gone by the end, or nobody answers.
    [[nodiscard]] QCoro::Task<bool> loadSome(std::vector<std::int64_t> appleIDs);
    /// As above.
    [[nodiscard]] QCoro::Task<bool> lookUp(std::vector<std::int64_t> appleIDs,
                                           std::optional<std::string> country);
    [[nodiscard]] std::vector<std::int64_t> takeUntried(const std::vector<std::int64_t>& appleIDs);
    void takeIn(const IconAddresses& found);
    [[nodiscard]] std::vector<std::int64_t> withoutIcon(std::vector<std::int64_t> appleIDs) const;
    void loadUrls();
    void saveUrls() const;

    Parts parts_;
    const std::string lookupService_;
    IconAddresses urls_;
    std::set<std::int64_t> attempted_;
    Lifetime life_;
};

}  // namespace vantrell
