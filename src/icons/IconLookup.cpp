#include "icons/IconLookup.h"

#include "IconsLog.h"
#include "net/RequestUrl.h"

#include <chrono>
#include <utility>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

namespace vantrell {
namespace {

constexpr auto lookupIdleTimeout = std::chrono::seconds(60);
constexpr auto lookupTotalTimeout = std::chrono::minutes(2);
constexpr std::size_t maxBodyBytes = std::size_t{8} << 20U;

std::string joined(const std::vector<std::int64_t>& appleIDs) {
    std::string text;
    for (const std::int64_t id : appleIDs) {
        text.append(text.empty() ? "" : ",").append(std::to_string(id));
    }
    return text;
}

std::vector<QueryItem> queryItems(const std::vector<std::int64_t>& appleIDs,
                                  const std::optional<std::string>& country) {
    std::vector<QueryItem> items{{"id", joined(appleIDs)}};
    if (country) {
        items.push_back({"country", *country});
    }
    return items;
}

struct Entry {
    std::optional<std::int64_t> trackId;
    std::optional<std::string> artworkUrl100;
    std::optional<std::string> artworkUrl60;
};

bool isAbsent(const QJsonValue& value) {
    return value.isUndefined() || value.isNull();
}

// Each of these is false for a value of another type; one that is absent is fine.
bool read(const QJsonValue& value, std::optional<std::string>& into) {
    if (value.isString()) {
        into = value.toString().toStdString();
    }
    return value.isString() || isAbsent(value);
}

bool read(const QJsonValue& value, std::optional<std::int64_t>& into) {
    // What is no whole number gives back whatever it is asked to.
    const bool whole = value.toInteger(0) == value.toInteger(1);
    if (whole) {
        into = value.toInteger();
    }
    return whole || isAbsent(value);
}

std::optional<Entry> entryOf(const QJsonValue& value) {
    const auto members = value.toObject();
    Entry entry;
    if (!value.isObject() || !read(members.value(QLatin1StringView("trackId")), entry.trackId) ||
        !read(members.value(QLatin1StringView("artworkUrl100")), entry.artworkUrl100) ||
        !read(members.value(QLatin1StringView("artworkUrl60")), entry.artworkUrl60)) {
        return std::nullopt;
    }
    return entry;
}

}  // namespace

bool isIconAddress(std::string_view text) {
    const auto address = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    return !text.empty() && QUrl(address, QUrl::StrictMode).isValid();
}

QCoro::Task<std::optional<IconAddresses>> IconLookup::fetch(HttpClient& http, std::string service,
                                                            std::vector<std::int64_t> appleIDs,
                                                            std::optional<std::string> country,
                                                            std::stop_token cancel) {
    auto url = requestUrl(service, "/lookup", queryItems(appleIDs, country));
    if (!url) {
        co_return IconAddresses();
    }
    HttpRequest request{.url = *std::move(url),
                        .redirects = Redirects::follow,
                        .idleTimeout = lookupIdleTimeout,
                        .totalTimeout = lookupTotalTimeout,
                        .maxBodyBytes = maxBodyBytes,
                        .maxErrorBodyBytes = maxBodyBytes};
    const HttpResult result = co_await http.get(std::move(request), std::move(cancel));
    const auto* response = std::get_if<HttpResponse>(&result);
    if (response == nullptr) {
        co_return std::nullopt;
    }
    auto found = parse(response->body);
    qCInfo(iconsLog) << found.size() << "icons of" << appleIDs.size() << "apps";
    co_return found;
}

IconAddresses IconLookup::parse(std::string_view body) {
    const auto document =
        QJsonDocument::fromJson(QByteArray(body.data(), static_cast<qsizetype>(body.size())));
    IconAddresses found;
    const auto results = document.object().value(QLatin1StringView("results")).toArray();
    for (const QJsonValue value : results) {
        const auto entry = entryOf(value);
        if (!entry) {
            return {};
        }
        const auto& address = entry->artworkUrl100 ? entry->artworkUrl100 : entry->artworkUrl60;
        if (entry->trackId && address && isIconAddress(*address)) {
            found.insert_or_assign(*entry->trackId, *address);
        }
    }
    return found;
}

}  // namespace vantrell
