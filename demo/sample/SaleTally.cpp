#include "sample/SaleTally.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vantrell::sample {

namespace {

// No catalogue has an item 255, so this is no key.
constexpr std::uint64_t emptySlot = ~std::uint64_t{0};
constexpr std::size_t firstCapacity = 512;

// The most significant part first, so that packed keys sort like the keys themselves.
std::uint64_t pack(const SaleKey& key) {
    std::uint64_t packed = key.item;
    packed = packed << 8U | key.territory;
    packed = packed << 8U | static_cast<std::uint8_t>(key.action);
    packed = packed << 8U | static_cast<std::uint8_t>(key.device);
    packed = packed << 8U | key.price;
    packed = packed << 8U | key.title;
    return packed << 16U | key.release;
}

SaleKey unpack(std::uint64_t packed) {
    return {.item = static_cast<std::uint8_t>(packed >> 56U),
            .territory = static_cast<std::uint8_t>(packed >> 48U),
            .action = static_cast<Action>(packed >> 40U & 0xFFU),
            .device = static_cast<Device>(packed >> 32U & 0xFFU),
            .price = static_cast<std::uint8_t>(packed >> 24U),
            .title = static_cast<std::uint8_t>(packed >> 16U),
            .release = static_cast<std::uint16_t>(packed)};
}

std::size_t scatter(std::uint64_t packed) {
    return static_cast<std::size_t>((packed ^ packed >> 32U) * 0x9E3779B97F4A7C15U >> 20U);
}

}  // namespace

SaleTally::SaleTally() : slots_(firstCapacity, Slot{emptySlot, 0}) {}

void SaleTally::add(const SaleLine& line) {
    const auto packed = pack(line.key);
    auto& slot = slotOf(packed);
    slot.units += line.units;
    if (slot.packedKey == emptySlot) {
        slot.packedKey = packed;
        if (++size_ * 2 > slots_.size()) {
            grow();
        }
    }
}

std::vector<SaleLine> SaleTally::lines() const {
    std::vector<Slot> used;
    used.reserve(size_);
    std::ranges::copy_if(slots_, std::back_inserter(used),
                         [](const Slot& slot) { return slot.packedKey != emptySlot; });
    std::ranges::sort(used, {}, &Slot::packedKey);

    std::vector<SaleLine> lines;
    lines.reserve(used.size());
    std::ranges::transform(used, std::back_inserter(lines), [](const Slot& slot) {
        return SaleLine{unpack(slot.packedKey), slot.units};
    });
    return lines;
}

void SaleTally::grow() {
    const auto old = std::exchange(slots_, std::vector<Slot>(slots_.size() * 2, Slot{emptySlot, 0}));
    for (const auto& slot : old) {
        if (slot.packedKey != emptySlot) {
            slotOf(slot.packedKey) = slot;
        }
    }
}

SaleTally::Slot& SaleTally::slotOf(std::uint64_t packedKey) {
    const auto mask = slots_.size() - 1;
    auto index = scatter(packedKey) & mask;
    while (slots_[index].packedKey != packedKey && slots_[index].packedKey != emptySlot) {
        index = (index + 1) & mask;
    }
    return slots_[index];
}

}  // namespace vantrell::sample
