#pragma once

#include "net/HttpClient.h"

#include <cstdint>
#include <map>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

#include <qcoro/qcorotask.h>

namespace vantrell {

/// Where icons are found, by the apps' Apple identifiers, each as the service wrote it.
using IconAddresses = std::map<std::int64_t, std::string>;

/// Whether `text` can be read as an address. Whether anything may be fetched from there is not asked.
[[nodiscard]] bool isIconAddress(std::string_view text);

/// Asks the App Store's public lookup service for icons. It needs no key.
namespace IconLookup {

/// One request for all of `appleIDs`, in the storefront of `country` if one is given. `service` is a scheme
/// and a host with no path; `http` must outlive the task. Absent without an answer, empty for any that can't
/// be used; only the body decides, not the HTTP status, and it may tell of apps that weren't asked for.
[[nodiscard]] QCoro::Task<std::optional<IconAddresses>> fetch(HttpClient& http, std::string service,
                                                              std::vector<std::int64_t> appleIDs,
                                                              std::optional<std::string> country,
                                                              std::stop_token cancel);

/// A body that isn't what the service sends, in any of its entries, gives nothing.
[[nodiscard]] IconAddresses parse(std::string_view body);

}  // namespace IconLookup

}  // namespace vantrell
