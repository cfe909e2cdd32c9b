#include "testing/FaultyVfs.h"

#include <memory>
#include <new>
#include <utility>

#include <sqlite3.h>

namespace vantrell::testing {
namespace {

/// Stands behind the real file: the real methods, and the same with a read and a write of ours.
struct Methods {
    FaultyVfs* owner;
    const sqlite3_io_methods* real;
    sqlite3_io_methods faulty;
};

Methods& methodsOf(sqlite3_file* file) {
    const int size = sqlite3_vfs_find(nullptr)->szOsFile;
    return *reinterpret_cast<Methods*>(reinterpret_cast<char*>(file) + size);
}

int readFile(sqlite3_file* file, void* bytes, int size, sqlite3_int64 offset) {
    const auto& [owner, real, faulty] = methodsOf(file);
    return owner->readsFail() ? SQLITE_IOERR_READ : real->xRead(file, bytes, size, offset);
}

int writeFile(sqlite3_file* file, const void* bytes, int size, sqlite3_int64 offset) {
    const auto& [owner, real, faulty] = methodsOf(file);
    const int failure = owner->nextWrite();
    return failure != SQLITE_OK ? failure : real->xWrite(file, bytes, size, offset);
}

int syncFile(sqlite3_file* file, int flags) {
    const auto& [owner, real, faulty] = methodsOf(file);
    // What was to be synced has got as far as the disk by then, as often as not.
    const int result = real->xSync(file, flags);
    const int failure = owner->nextSync();
    return failure != SQLITE_OK ? failure : result;
}

int openFile(sqlite3_vfs* vfs, const char* path, sqlite3_file* file, int flags, int* outFlags) {
    auto* owner = static_cast<FaultyVfs*>(vfs->pAppData);
    const int result = owner->real()->xOpen(owner->real(), path, file, flags, outFlags);
    if (file->pMethods != nullptr) {
        auto* methods = new (&methodsOf(file)) Methods{owner, file->pMethods, *file->pMethods};
        methods->faulty.iVersion = 1;  // no mapped memory, which would pass reads and writes by
        methods->faulty.xRead = readFile;
        methods->faulty.xWrite = writeFile;
        methods->faulty.xSync = syncFile;
        file->pMethods = &methods->faulty;
    }
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
    layer_->vfs.szOsFile = static_cast<int>(sizeof(Methods)) + real_->szOsFile;
    layer_->vfs.zName = name_.c_str();
    layer_->vfs.pAppData = this;
    layer_->vfs.xOpen = openFile;
    layer_->vfs.pNext = nullptr;
    sqlite3_vfs_register(&layer_->vfs, 0);
}

FaultyVfs::~FaultyVfs() {
    sqlite3_vfs_unregister(&layer_->vfs);
}

void FaultyVfs::failSyncsFrom(int count) {
    syncs_ = {count, SQLITE_IOERR_FSYNC};
}

}  // namespace vantrell::testing
