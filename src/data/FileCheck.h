#pragma once

#include "Sqlite.h"

#include <memory>
#include <optional>
#include <string>

namespace vantrell {

/// Looks through the file of an open store: whether its pages and tables fit together, and whether the lines
/// refer to texts and offers that are there. Reads the file by itself, so that it may run beside the thread
/// that the store belongs to.
///
/// It must not go before the store is closed, whose locks would go with it.
class FileCheck {
  public:
    explicit FileCheck(const std::string& path) : path_(path) {}

    /// What is damaged, in a few words; absent when nothing is. May be called once.
    [[nodiscard]] std::optional<std::string> run();

  private:
    std::string path_;
    std::unique_ptr<SqliteDatabase> database_;
};

}  // namespace vantrell
