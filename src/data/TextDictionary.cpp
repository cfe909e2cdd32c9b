#include "data/TextDictionary.h"

#include "OpenStore.h"

#include <algorithm>

namespace vantrell {
namespace {

// With the nodes and their overhead.
constexpr std::size_t entryBytes = 136;

}  // namespace

TextDictionary::TextDictionary(const OpenStore& store) : database_(store.database) {
    auto select = database_.prepare("SELECT id, value FROM text ORDER BY id");
    while (select.step()) {
        if (select.integer(0) != static_cast<std::int64_t>(texts_.size())) {
            throw SqliteError(SQLITE_CORRUPT, "the dictionary of texts has gaps");
        }
        texts_.emplace_back(select.text(1));
        ids_.emplace(texts_.back(), static_cast<TextID>(texts_.size() - 1));
    }
    saved_ = texts_.size();
    // Number 0 must be the empty text, in a new store as well.
    if (texts_.empty()) {
        texts_.emplace_back();
        ids_.emplace(texts_.back(), 0);
    }
}

TextID TextDictionary::intern(std::string_view text) {
    if (text.empty()) {
        return 0;
    }
    if (const auto known = ids_.find(text); known != ids_.end()) {
        return known->second;
    }
    const auto id = static_cast<TextID>(texts_.size());
    texts_.emplace_back(text);
    ids_.emplace(texts_.back(), id);
    bytes_ += entryBytes + text.size();
    return id;
}

void TextDictionary::shrink(std::size_t size) {
    while (texts_.size() > std::max(size, saved_)) {
        bytes_ -= entryBytes + texts_.back().size();
        ids_.erase(texts_.back());
        texts_.pop_back();
    }
}

std::string_view TextDictionary::text(TextID id) const {
    return id < texts_.size() ? std::string_view(texts_[id]) : std::string_view();
}

void TextDictionary::write() {
    if (saved_ == texts_.size()) {
        return;
    }
    auto insert = database_.prepare("INSERT INTO text (id, value) VALUES (?, ?)");
    for (std::size_t id = saved_; id < texts_.size(); ++id) {
        insert.bind(0, static_cast<std::int64_t>(id));
        insert.bind(1, std::string_view(texts_[id]));
        insert.run();
    }
}

void TextDictionary::removeUnsaved() {
    database_.run("DELETE FROM text WHERE id >= ?", static_cast<std::int64_t>(saved_));
}

}  // namespace vantrell
