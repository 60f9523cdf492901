// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/system_io.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <memory>
#include <system_error>
#include <utility>

void throwSystemError() { throw std::system_error(errno, std::generic_category()); }

Descriptor::Descriptor(int number) : number_(number) {
    if (number < 0) throwSystemError();
}

Descriptor::~Descriptor() {
    if (number_ >= 0) ::close(number_);
}

Descriptor::Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
}

void Descriptor::close() {
    if (::close(std::exchange(number_, -1)) != 0) throwSystemError();
}

void writeAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(descriptor, text.data(), text.size());
        if (written >= 0) {
            text.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            throwSystemError();
        }
    }
}

void gather(const std::function<void(const std::string& path)>& write,
            const std::function<void(std::string_view text)>& take) {
    const Descriptor memory(::memfd_create("brenica-batch", MFD_CLOEXEC));
    write("/proc/self/fd/" + std::to_string(memory.number()));
    const off_t size = ::lseek(memory.number(), 0, SEEK_END);
    if (size < 0) throwSystemError();
    if (size == 0) return take({});
    const auto length = static_cast<std::size_t>(size);
    void* const content = ::mmap(nullptr, length, PROT_READ, MAP_SHARED | MAP_POPULATE, memory.number(), 0);
    if (content == MAP_FAILED) throwSystemError();
    const auto unmap = [length](void* mapped) { ::munmap(mapped, length); };
    const std::unique_ptr<void, decltype(unmap)> mapped(content, unmap);
    take({static_cast<const char*>(content), length});
}

SignalsHeld::SignalsHeld() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, &before_);
}

SignalsHeld::~SignalsHeld() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

void reserveStandardStreams() {
    const std::pair<int, int> streams[] = {
        {STDIN_FILENO, O_WRONLY}, {STDOUT_FILENO, O_RDONLY}, {STDERR_FILENO, O_RDONLY}};
    for (const auto& [number, wrongWay] : streams) {
        if (::fcntl(number, F_GETFD) >= 0) continue;
        // The lowest free number is the one that is missing.
        if (::open("/dev/null", wrongWay) != number) throwSystemError();
    }
}
