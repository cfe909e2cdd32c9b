#include "files/FileCache.h"

#include "files/AtomicFile.h"
#include "files/RegularFile.h"

#include <algorithm>
#include <tuple>
#include <utility>
#include <variant>
#include <vector>

#include <QCryptographicHash>

namespace vantrell {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t hashLength = 64;

struct CachedFile {
    fs::file_time_type usedAt;
    std::uintmax_t bytes = 0;
    fs::path path;
};

// A write that was cut short leaves a file behind that has more after the hash.
bool isOwnName(const std::string& name) {
    const auto isHexDigit = [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); };
    return name.size() >= hashLength && std::all_of(name.begin(), name.begin() + hashLength, isHexDigit);
}

std::vector<CachedFile> filesIn(const fs::path& folder) {
    std::vector<CachedFile> files;
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed); entry != fs::directory_iterator();
         entry.increment(failed)) {
        CachedFile file{entry->last_write_time(failed), entry->file_size(failed), entry->path()};
        if (!failed && entry->is_regular_file(failed) && isOwnName(file.path.filename())) {
            files.push_back(std::move(file));
        }
    }
    return files;
}

std::uintmax_t sumOf(const std::vector<CachedFile>& files) {
    std::uintmax_t sum = 0;
    for (const auto& file : files) {
        sum += file.bytes;
    }
    return sum;
}

}  // namespace

FileCache::FileCache(fs::path folder, std::uintmax_t maxBytes)
    : folder_(std::move(folder)), maxBytes_(maxBytes) {}

std::optional<std::string> FileCache::read(std::string_view key) const {
    const fs::path path = fileOf(key);
    auto read = readRegularFile(path, maxBytes_);
    auto* const bytes = std::get_if<std::string>(&read);
    if (bytes == nullptr) {
        return std::nullopt;
    }
    std::error_code failed;
    fs::last_write_time(path, fs::file_time_type::clock::now(), failed);
    return std::move(*bytes);
}

void FileCache::write(std::string_view key, std::string_view bytes) {
    if (writeAtomically(fileOf(key), bytes)) {
        return;
    }
    bytes_ = bytes_ ? *bytes_ + bytes.size() : sumOf(filesIn(folder_));
    if (*bytes_ > maxBytes_) {
        makeRoom();
    }
}

void FileCache::remove(std::string_view key) const {
    std::error_code failed;
    fs::remove(fileOf(key), failed);
}

fs::path FileCache::fileOf(std::string_view key) const {
    const auto bytes = QByteArray::fromRawData(key.data(), static_cast<qsizetype>(key.size()));
    return folder_ / QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().toStdString();
}

/// Leaves a quarter free, so that not every write has to look through the folder.
void FileCache::makeRoom() {
    auto files = filesIn(folder_);
    std::ranges::sort(files, {},
                      [](const CachedFile& file) { return std::tie(file.usedAt, file.path.native()); });
    bytes_ = sumOf(files);
    for (auto file = files.begin(); file != files.end() && *bytes_ > maxBytes_ / 4 * 3; ++file) {
        std::error_code failed;
        fs::remove(file->path, failed);
        *bytes_ -= file->bytes;
    }
}

}  // namespace vantrell
