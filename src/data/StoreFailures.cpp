#include "StoreFailures.h"

#include <algorithm>
#include <cerrno>
#include <string>

#include <sqlite3.h>

namespace vantrell {

StoreFailure storeFailure(int systemError) {
    switch (systemError) {
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return StoreFailure::diskFull;
        case EROFS:
        case EACCES:
        case EPERM:
            return StoreFailure::readOnly;
        case EIO:
            return StoreFailure::inputOutput;
        default:
            return StoreFailure::other;
    }
}

namespace {

StoreFailure failureOf(const SqliteError& error) {
    switch (error.code() & 0xff) {
        case SQLITE_FULL:
            return StoreFailure::diskFull;
        case SQLITE_READONLY:
            return StoreFailure::readOnly;
        case SQLITE_IOERR:
        case SQLITE_CANTOPEN: {
            const StoreFailure told = storeFailure(error.systemError());
            return told == StoreFailure::other ? StoreFailure::inputOutput : told;
        }
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
            return StoreFailure::damaged;
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return StoreFailure::inUse;
        case SQLITE_TOOBIG:
        case SQLITE_CONSTRAINT:
        case SQLITE_MISMATCH:
        case SQLITE_NOMEM:
            return StoreFailure::rejected;
        default:
            return StoreFailure::other;
    }
}

// SQLite quotes what a damaged file holds, which may be anything.
std::string readable(std::string words) {
    std::ranges::replace_if(
        words, [](char letter) { return letter < ' ' || letter > '~'; }, '?');
    return words;
}

}  // namespace

StoreError storeInUse() {
    return {"the store is in use by another process", StoreFailure::inUse};
}

StoreError damagedStore() {
    return {"the store is damaged", StoreFailure::damaged};
}

StoreError storeError(const SqliteError& error) {
    const StoreFailure failure = failureOf(error);
    return failure == StoreFailure::inUse ? storeInUse() : StoreError{readable(error.what()), failure};
}

}  // namespace vantrell
