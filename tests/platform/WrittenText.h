#pragma once

#include "platform/OpenSslOwners.h"

#include <string>

#include <gtest/gtest.h>

namespace vantrell::testing {

/// What one of OpenSSL's writers puts out.
template <typename Write>
std::string writtenBy(Write write) {
    const OwnedBio bio(BIO_new(BIO_s_mem()));
    EXPECT_EQ(write(bio.get()), 1);
    char* data = nullptr;
    const auto size = BIO_get_mem_data(bio.get(), &data);
    return {data, static_cast<std::size_t>(size)};
}

}  // namespace vantrell::testing
