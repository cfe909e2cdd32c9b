#pragma once

#include "data/ModelContext.h"
#include "data/StoreError.h"

#include <filesystem>
#include <memory>
#include <string>
#include <variant>

namespace vantrell {

/// Whether the store mirrors through the platform's cloud.
enum class CloudDatabase { automatic, none };

struct ModelConfiguration {
    std::filesystem::path file;
    CloudDatabase cloudDatabase = CloudDatabase::automatic;
    std::string vfs;  ///< which of SQLite's file layers to use; empty means the default
};

/// The open store: one SQLite file that this process alone may use while the container lives.
class ModelContainer {
  public:
    /// Opens the file, or creates it (0600) with its folder (0700). An error where the file is another
    /// application's, of a newer version, no database, or in use by another process; such a file is left as
    /// it was, to the byte. What a crash has left is mended, and a start that was cut off begins again. This
    /// platform has no mirroring, so `CloudDatabase::automatic` is an error too.
    [[nodiscard]] static std::variant<std::unique_ptr<ModelContainer>, StoreError> open(
        const ModelConfiguration& configuration);

    ModelContainer(const ModelContainer&) = delete;
    ModelContainer& operator=(const ModelContainer&) = delete;

    ~ModelContainer();

    [[nodiscard]] ModelContext& mainContext() { return context_; }

  private:
    explicit ModelContainer(std::unique_ptr<SqliteDatabase> database);

    // Outlives the open store, whose locks would go with it.
    std::shared_ptr<FileCheck> fileCheck_;
    std::unique_ptr<SqliteDatabase> database_;
    ModelContext context_;
};

}  // namespace vantrell
