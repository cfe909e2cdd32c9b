#pragma once

#include "Sqlite.h"
#include "data/StoreHealth.h"

namespace vantrell {

/// What every part of an open store stands on. Both outlive it.
struct OpenStore {
    SqliteDatabase& database;
    StoreHealth& health;
};

}  // namespace vantrell
