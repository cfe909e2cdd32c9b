#include "Schema.h"

#include "Layouts.h"

#include <string>

namespace vantrell {
namespace {

std::string tableSQL(std::string_view name, const std::string& columns) {
    return "CREATE TABLE " + std::string(name) + " (id INTEGER PRIMARY KEY, " + columns + ");";
}

// Lines declare no types, which would be looked at a million times.
template <typename Layout>
std::string tablesSQL() {
    if constexpr (requires { Layout::batches; }) {
        return tableSQL(Layout::table, names(Layout::columns)) +
               tableSQL(Layout::batches, std::string(Layout::group) + " TEXT NOT NULL, " +
                                             std::string(Layout::label) +
                                             " TEXT NOT NULL, firstLine INTEGER NOT NULL,"
                                             " lineCount INTEGER NOT NULL");
    } else if constexpr (requires { Layout::damage; }) {
        return tableSQL(Layout::table, names(Layout::columns));
    } else {
        return tableSQL(Layout::table, joined(Layout::columns, ", ", [](const auto& column) {
                            return std::string(column.name) + StorageOf<decltype(column)>::type;
                        }));
    }
}

// The properties of a record as its view shows them. The number of its offer is none.
template <typename Columns>
std::string shownSQL(const Columns& columns) {
    return joined(columns, ", ", [](const auto& each) {
        using Column = std::remove_cvref_t<decltype(each)>;
        if constexpr (std::is_same_v<typename Column::Storage, storage::OfferNumber>) {
            return std::string();
        } else {
            const std::string name(each.name);
            const bool isOffer = std::is_same_v<typename Column::Owner, StoredOffer>;
            return Column::Storage::shown((isOffer ? "offer." : "line.") + name) + " AS " + name;
        }
    });
}

template <typename Layout>
std::string viewSQL() {
    const std::string table(Layout::table);
    if constexpr (requires { Layout::batches; }) {
        return "SELECT 'default' AS accountID, batch." + std::string(Layout::group) + ", batch." +
               std::string(Layout::label) + ", " + shownSQL(Layout::shown) + " FROM " +
               std::string(Layout::batches) + " AS batch CROSS JOIN " + table +
               " AS line ON line.id >= batch.firstLine AND line.id < batch.firstLine + batch.lineCount" +
               std::string(Layout::join);
    } else {
        return "SELECT " + shownSQL(Layout::columns) + " FROM " + table + " AS line";
    }
}

}  // namespace

std::map<std::string, std::string> viewsSQL() {
    std::map<std::string, std::string> views;
    forEachLayout<StoreParts>([&]<typename Layout>(Layout) {
        if constexpr (requires { Layout::view; }) {
            const std::string name(Layout::view);
            views.emplace(name, "CREATE VIEW " + name + " AS " + viewSQL<Layout>());
        }
    });
    return views;
}

void createViews(SqliteDatabase& database) {
    for (const auto& [name, sql] : viewsSQL()) {
        database.execute(sql);
    }
}

void dropViews(SqliteDatabase& database) {
    for (const auto& [name, sql] : viewsSQL()) {
        database.execute("DROP VIEW IF EXISTS " + name);
    }
}

void createSchema(SqliteDatabase& database) {
    forEachLayout<StoreParts>([&]<typename Layout>(Layout) { database.execute(tablesSQL<Layout>()); });
    createViews(database);
    database.execute("PRAGMA application_id = " + std::to_string(storeApplicationID));
    database.execute("PRAGMA user_version = " + std::to_string(storeVersion));
}

}  // namespace vantrell
