// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/input_file.h"

#include <fcntl.h>
#include <openssl/evp.h>
#include <unistd.h>

#include <array>
#include <stdexcept>

#include "batch/system_io.h"

std::string readWhole(const std::string& path) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    std::string text;
    std::array<char, 1 << 16> piece;
    while (true) {
        const ssize_t count = ::read(file.number(), piece.data(), piece.size());
        if (count == 0) return text;
        if (count > 0) {
            text.append(piece.data(), static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            throwSystemError();
        }
    }
}

std::string sha256(const std::string& text) {
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest;
    unsigned size = 0;
    if (EVP_Digest(text.data(), text.size(), digest.data(), &size, EVP_sha256(), nullptr) != 1)
        throw std::runtime_error("SHA-256 cannot be computed");
    constexpr const char* Digits = "0123456789abcdef";
    std::string shown;
    for (unsigned i = 0; i < size; ++i) {
        shown += Digits[digest[i] >> 4];
        shown += Digits[digest[i] & 0xF];
    }
    return shown;
}
