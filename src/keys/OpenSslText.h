#pragma once

#include "OpenSslOwners.h"

#include <stdexcept>
#include <string>

namespace vantrell {

/// What `write` writes into the BIO that it is handed. Throws std::runtime_error unless it returns 1.
template <typename Write>
[[nodiscard]] std::string textWrittenBy(Write write) {
    const OwnedBio bio(BIO_new(BIO_s_mem()));
    if (!bio || write(bio.get()) != 1) {
        throw std::runtime_error("a key could not be written as text");
    }
    char* data = nullptr;
    const auto size = BIO_get_mem_data(bio.get(), &data);
    return {data, static_cast<std::size_t>(size)};
}

}  // namespace vantrell
