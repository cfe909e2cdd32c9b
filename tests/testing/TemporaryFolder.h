#pragma once

#include <filesystem>
#include <string>

#include <QTemporaryDir>

namespace vantrell::testing {

/// A folder of its own for one test, removed with everything in it.
class TemporaryFolder {
  public:
    [[nodiscard]] std::filesystem::path path() const { return folder_.path().toStdString(); }
    [[nodiscard]] std::filesystem::path operator/(const std::string& name) const { return path() / name; }

  private:
    QTemporaryDir folder_;
};

}  // namespace vantrell::testing
