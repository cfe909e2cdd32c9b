#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

namespace vantrell {

/// One property of a record: the name of its column, where the record holds it, how it lies there (see
/// Storage.h), and, of a line, where the parsed row holds it.
template <typename Lies, typename Holder, typename Value, typename InRow>
struct Column {
    using Storage = Lies;
    using Owner = Holder;
    static constexpr bool isOfRow = !std::is_same_v<InRow, std::nullptr_t>;

    std::string_view name;
    Value Holder::*member;
    InRow inRow{};
};

template <typename Storage, typename Owner, typename Value, typename InRow = std::nullptr_t>
constexpr auto column(std::string_view name, Value Owner::*member, InRow inRow = {}) {
    return Column<Storage, Owner, Value, InRow>{name, member, inRow};
}

template <typename Column>
using StorageOf = typename std::remove_cvref_t<Column>::Storage;

/// Calls `visit` with each column, in order.
template <typename... Column, typename Visit>
constexpr void forEach(const std::tuple<Column...>& columns, Visit visit) {
    std::apply([&visit](const Column&... each) { (visit(each), ...); }, columns);
}

/// Likewise, and with its number as a type.
template <typename... Column, typename Visit>
constexpr void forEachNumbered(const std::tuple<Column...>& columns, Visit visit) {
    [&]<std::size_t... number>(std::index_sequence<number...>) {
        (visit(std::get<number>(columns), std::integral_constant<std::size_t, number>()), ...);
    }
    (std::index_sequence_for<Column...>());
}

/// Those whose members belong to this type itself.
template <typename Owner, typename... Column>
constexpr auto columnsOf(const std::tuple<Column...>& columns) {
    const auto only = []<typename Each>(const Each& each) {
        if constexpr (std::is_same_v<typename Each::Owner, Owner>) {
            return std::tuple<Each>(each);
        } else {
            return std::tuple<>();
        }
    };
    return std::apply([&](const Column&... each) { return std::tuple_cat(only(each)...); }, columns);
}

/// What `say` makes of each column, with what separates it from those before; nothing of what is empty.
template <typename Columns, typename Say>
std::string joined(const Columns& columns, std::string_view separator, Say say) {
    std::string text;
    forEach(columns, [&](const auto& each) {
        const std::string said(say(each));
        text.append(text.empty() || said.empty() ? "" : separator).append(said);
    });
    return text;
}

template <typename Columns>
std::string names(const Columns& columns) {
    return joined(columns, ", ", [](const auto& each) { return each.name; });
}

/// The number of the row is the first parameter.
template <typename Columns>
std::string insertSQL(std::string_view table, const Columns& columns, const char* insert = "INSERT") {
    return std::string(insert) + " INTO " + std::string(table) + " (id, " + names(columns) + ") VALUES (?" +
           joined(columns, "", [](const auto&) { return ", ?"; }) + ")";
}

}  // namespace vantrell
