#pragma once

#include <memory>
#include <string>

struct sqlite3_vfs;

namespace vantrell::testing {

/// A file layer for SQLite that passes everything on to the real one until it is told to fail a write or a
/// sync, as a full or broken disk does. Register it under a name and open the store through that name.
class FaultyVfs {
  public:
    explicit FaultyVfs(std::string name);
    ~FaultyVfs();
    FaultyVfs(const FaultyVfs&) = delete;
    FaultyVfs& operator=(const FaultyVfs&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }

    /// Every write from the `count`-th on fails with the SQLite result `result`; 0 lets all succeed again.
    void failWritesFrom(int count, int result) { writes_ = {count, result}; }
    /// Likewise of syncs, with an I/O error.
    void failSyncsFrom(int count);
    /// Every read fails with an I/O error.
    void failReads(bool fail) { failReads_ = fail; }

    // For the file layer's own functions: the result that the next call is to fail with, or 0.
    [[nodiscard]] int nextWrite() { return writes_.next(); }
    [[nodiscard]] int nextSync() { return syncs_.next(); }
    [[nodiscard]] bool readsFail() const { return failReads_; }
    [[nodiscard]] sqlite3_vfs* real() const { return real_; }

  private:
    struct Layer;
    /// Those of one kind.
    struct Calls {
        int failFrom = 0;
        int result = 0;
        int made = 0;
        int next() { return ++made >= failFrom && failFrom != 0 ? result : 0; }
    };
    std::string name_;
    sqlite3_vfs* real_;
    std::unique_ptr<Layer> layer_;
    Calls writes_;
    Calls syncs_;
    bool failReads_ = false;
};

}  // namespace vantrell::testing
