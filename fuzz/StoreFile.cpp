#include "Targets.h"
#include "data/ModelContainer.h"
#include "figures/SnapshotLoader.h"
#include "testing/TemporaryFolder.h"

#include <fstream>

namespace vantrell::fuzz {

/// Any bytes open as what they hold or not at all.
void storeFile(const std::string& input) {
    static const testing::TemporaryFolder folder;
    const auto file = folder / "vantrell.sqlite";
    for (const char* suffix : {"", "-journal", "-wal", "-shm"}) {
        std::filesystem::remove(file.string() + suffix);
    }
    std::ofstream(file, std::ios::binary) << input;
    auto opened = ModelContainer::open({file, CloudDatabase::none, {}});
    if (const auto* error = std::get_if<StoreError>(&opened)) {
        require(!error->description.empty());
        return;
    }
    ModelContext& context = std::get<std::unique_ptr<ModelContainer>>(opened)->mainContext();
    static_cast<void>(context.fetchSalesRows());
    static_cast<void>(context.fetchFinanceRows());
    const Locale locale(LocaleNames{"C", "C", "C", "C", "C"});
    static_cast<void>(SnapshotLoader(locale).load(context, {}));
    context.syncLog().insert({});
    static_cast<void>(context.save());
}

}  // namespace vantrell::fuzz
