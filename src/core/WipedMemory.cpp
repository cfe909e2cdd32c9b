// What a program frees is wiped, since the classes that carry a key to the keyring and a token to the service
// make copies of their own that nobody else could reach. This takes the place of the C library's functions in
// a program that it is linked into, for all libraries of the process.

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <malloc.h>

// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming)
extern "C" {
void __libc_free(void* block);
void* __libc_realloc(void* block, std::size_t size);
}
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming)

namespace {

/// Longer than any key file as UTF-16; wiping the rows of reports as well would cost time for nothing.
constexpr std::size_t mostWiped = std::size_t{256} << 10U;

void wipe(void* block, std::size_t size) {
    if (size <= mostWiped) {
        ::explicit_bzero(block, size);
    }
}

}  // namespace

extern "C" void free(void* block) noexcept {
    if (block != nullptr) {
        wipe(block, ::malloc_usable_size(block));
        __libc_free(block);
    }
}

extern "C" void* realloc(void* block, std::size_t size) noexcept {
    const std::size_t held = block == nullptr ? 0 : ::malloc_usable_size(block);
    if (held == 0 || held > mostWiped) {
        return __libc_realloc(block, size);
    }
    if (size == 0) {
        std::free(block);
        return nullptr;
    }
    if (size <= held && size >= held / 2) {
        return block;
    }
    // The library would move it and leave the old one as it is.
    void* const moved = std::malloc(size);
    if (moved != nullptr) {
        std::memcpy(moved, block, held < size ? held : size);
        std::free(block);
    }
    return moved;
}
