#include "Migrations.h"

#include "Schema.h"

#include <array>

namespace vantrell {
namespace {

// What makes a store of version 1 one of version 2, and so on. What a migration once did stays as it is.
constexpr std::array migrations{
    // The account of all lines is the same, and what names a range of lines has no use for it.
    R"sql(
CREATE TABLE vantrell_new (id INTEGER PRIMARY KEY, frequencyRaw TEXT NOT NULL, reportDate TEXT NOT NULL,
    firstLine INTEGER NOT NULL, lineCount INTEGER NOT NULL);
INSERT INTO vantrell_new SELECT id, frequencyRaw, reportDate, firstLine, lineCount FROM sales_batch;
DROP TABLE sales_batch;
ALTER TABLE vantrell_new RENAME TO sales_batch;
CREATE TABLE vantrell_new (id INTEGER PRIMARY KEY, region TEXT NOT NULL, fiscalPeriod TEXT NOT NULL,
    firstLine INTEGER NOT NULL, lineCount INTEGER NOT NULL);
INSERT INTO vantrell_new SELECT id, region, fiscalPeriod, firstLine, lineCount FROM finance_batch;
DROP TABLE finance_batch;
ALTER TABLE vantrell_new RENAME TO finance_batch;
)sql",
};
static_assert(storeVersion == migrations.size() + 1);

}  // namespace

void migrate(SqliteDatabase& database, std::int64_t version) {
    // A view of the person's own may read what is being changed, and isn't looked at on the way.
    database.execute("PRAGMA legacy_alter_table = ON");
    for (; version < storeVersion; ++version) {
        SqliteTransaction transaction(database);
        dropViews(database);
        database.execute(migrations.at(static_cast<std::size_t>(version - 1)));
        createViews(database);
        database.execute("PRAGMA user_version = " + std::to_string(version + 1));
        transaction.commit();
    }
    database.execute("PRAGMA legacy_alter_table = OFF");
}

}  // namespace vantrell
