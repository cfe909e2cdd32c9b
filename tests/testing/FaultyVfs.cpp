#include "testing/FaultyVfs.h"

#include <memory>
#include <new>
#include <utility>

#include <sqlite3.h>

namespace vantrell::testing {
namespace {

/// A file of ours: SQLite's part first, then the real file behind it.
struct File {
    sqlite3_file base;
    FaultyVfs* owner;

    [[nodiscard]] sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

File& ours(sqlite3_file* file) {
    return *reinterpret_cast<File*>(file);
}

sqlite3_file* real(sqlite3_file* file) {
    return ours(file).real();
}

int closeFile(sqlite3_file* file) {
    return real(file)->pMethods->xClose(real(file));
}
int readFile(sqlite3_file* file, void* bytes, int size, sqlite3_int64 offset) {
    if (ours(file).owner->readsFail()) {
        return SQLITE_IOERR_READ;
    }
    return real(file)->pMethods->xRead(real(file), bytes, size, offset);
}
int writeFile(sqlite3_file* file, const void* bytes, int size, sqlite3_int64 offset) {
    if (const int result = ours(file).owner->countWrite()) {
        return result;
    }
    return real(file)->pMethods->xWrite(real(file), bytes, size, offset);
}
int truncateFile(sqlite3_file* file, sqlite3_int64 size) {
    return real(file)->pMethods->xTruncate(real(file), size);
}
int syncFile(sqlite3_file* file, int flags) {
    return real(file)->pMethods->xSync(real(file), flags);
}
int fileSize(sqlite3_file* file, sqlite3_int64* size) {
    return real(file)->pMethods->xFileSize(real(file), size);
}
int lockFile(sqlite3_file* file, int level) {
    return real(file)->pMethods->xLock(real(file), level);
}
int unlockFile(sqlite3_file* file, int level) {
    return real(file)->pMethods->xUnlock(real(file), level);
}
int checkReservedLock(sqlite3_file* file, int* result) {
    return real(file)->pMethods->xCheckReservedLock(real(file), result);
}
int fileControl(sqlite3_file* file, int operation, void* argument) {
    return real(file)->pMethods->xFileControl(real(file), operation, argument);
}
int sectorSize(sqlite3_file* file) {
    return real(file)->pMethods->xSectorSize(real(file));
}
int deviceCharacteristics(sqlite3_file* file) {
    return real(file)->pMethods->xDeviceCharacteristics(real(file));
}

constexpr sqlite3_io_methods methods{.iVersion = 1,
                                     .xClose = closeFile,
                                     .xRead = readFile,
                                     .xWrite = writeFile,
                                     .xTruncate = truncateFile,
                                     .xSync = syncFile,
                                     .xFileSize = fileSize,
                                     .xLock = lockFile,
                                     .xUnlock = unlockFile,
                                     .xCheckReservedLock = checkReservedLock,
                                     .xFileControl = fileControl,
                                     .xSectorSize = sectorSize,
                                     .xDeviceCharacteristics = deviceCharacteristics,
                                     .xShmMap = nullptr,
                                     .xShmLock = nullptr,
                                     .xShmBarrier = nullptr,
                                     .xShmUnmap = nullptr,
                                     .xFetch = nullptr,
                                     .xUnfetch = nullptr};

int openFile(sqlite3_vfs* vfs, const char* path, sqlite3_file* file, int flags, int* outFlags) {
    auto* owner = static_cast<FaultyVfs*>(vfs->pAppData);
    File* opened = new (file) File{{nullptr}, owner};
    const int result = owner->real()->xOpen(owner->real(), path, opened->real(), flags, outFlags);
    opened->base.pMethods = result == SQLITE_OK ? &methods : nullptr;
    return result;
}

}  // namespace

struct FaultyVfs::Layer {
    sqlite3_vfs vfs;
};

FaultyVfs::FaultyVfs(std::string name)
    : name_(std::move(name)),
      real_(sqlite3_vfs_find(nullptr)),
      layer_(std::make_unique<Layer>(Layer{*real_})) {
    layer_->vfs.szOsFile = static_cast<int>(sizeof(File)) + real_->szOsFile;
    layer_->vfs.zName = name_.c_str();
    layer_->vfs.pAppData = this;
    layer_->vfs.xOpen = openFile;
    layer_->vfs.pNext = nullptr;
    sqlite3_vfs_register(&layer_->vfs, 0);
}

FaultyVfs::~FaultyVfs() {
    sqlite3_vfs_unregister(&layer_->vfs);
}

void FaultyVfs::failWritesFrom(int count, int result) {
    failFrom_ = count;
    result_ = result;
    writes_ = 0;
}

int FaultyVfs::countWrite() {
    ++writes_;
    return failFrom_ != 0 && writes_ >= failFrom_ ? result_ : SQLITE_OK;
}

}  // namespace vantrell::testing
