#include "FileCheck.h"

#include "Layouts.h"
#include "Schema.h"
#include "StoreFailures.h"
#include "base/Utf8.h"

#include <string_view>
#include <tuple>

namespace vantrell {
namespace {

// Is true of rows that can't be read. A number that was never given reads as the empty text or offer, and
// what is no number as one: a silent zero.
template <typename Columns>
std::string damageSQL(const Columns& columns) {
    const std::string texts = joined(columns, ", ", [](const auto& column) {
        constexpr bool isText = std::is_same_v<StorageOf<decltype(column)>, storage::TextNumber>;
        return isText ? column.name : std::string_view();
    });
    const std::string others = joined(columns, " OR ", [](const auto& column) {
        if constexpr (requires(std::string name) { StorageOf<decltype(column)>::damage(name); }) {
            return StorageOf<decltype(column)>::damage(std::string(column.name));
        } else {
            return std::string_view();
        }
    });
    return "NOT coalesce(max(0, " + texts + ") <= (SELECT coalesce(max(id), 0) FROM text) AND min(0, " +
           texts + ") >= 0, FALSE) OR " + others;
}

template <typename Layout>
bool hasDamagedRows(SqliteDatabase& database) {
    return database
        .prepare("SELECT 1 FROM " + std::string(Layout::table) + " WHERE " + damageSQL(Layout::columns) +
                 " LIMIT 1")
        .step();
}

// SQLite takes any bytes for text, and anything for a column of texts.
template <typename Layout>
bool hasBrokenText(SqliteDatabase& database) {
    bool isBroken = false;
    forEach(Layout::columns, [&](const auto& column) {
        if constexpr (requires { StorageOf<decltype(column)>::isForeign; }) {
            auto texts = database.prepare("SELECT " + std::string(column.name) + " FROM " +
                                          std::string(Layout::table));
            while (!isBroken && texts.step()) {
                isBroken = !texts.isText(0) || !isUtf8(texts.text(0));
            }
        }
    });
    return isBroken;
}

// A damaged text can still be a view, and one that says something else. The person's own may stand beside
// ours. Throws SqliteError where one can't be read.
bool hasForeignView(SqliteDatabase& database) {
    auto expected = viewsSQL();
    for (const auto& [name, sql] : expected) {
        // Throws for one that can't be read, which is all that is asked.
        std::ignore = database.prepare("SELECT 1 FROM " + name);
    }
    auto schema = database.prepare("SELECT name, sql FROM sqlite_schema WHERE type = 'view'");
    while (schema.step()) {
        const auto view = expected.find(std::string(schema.text(0)));
        if (view != expected.end() && view->second == schema.text(1)) {
            expected.erase(view);
        }
    }
    return !expected.empty();
}

const char* damageOfRows(SqliteDatabase& database) {
    const char* damage = nullptr;
    forEachLayout<StoreParts>([&]<typename Layout>(Layout) {
        if (damage == nullptr && hasBrokenText<Layout>(database)) {
            damage = "a text is no text";
        }
        if constexpr (requires { Layout::damage; }) {
            if (damage == nullptr && hasDamagedRows<Layout>(database)) {
                damage = Layout::damage;
            }
        }
    });
    return damage;
}

}  // namespace

std::optional<std::string> FileCheck::run() {
    try {
        database_ = std::make_unique<SqliteDatabase>(path_, SqliteDatabase::Mode::peek);
        if (auto damage = quickCheck(*database_)) {
            return damage;
        }
        if (const char* const damage = damageOfRows(*database_)) {
            return damage;
        }
        if (hasForeignView(*database_)) {
            return "a view isn't as it was made";
        }
    } catch (const SqliteError& error) {
        return storeError(error).description;
    }
    return std::nullopt;
}

}  // namespace vantrell
