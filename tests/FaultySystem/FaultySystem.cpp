// Stands between the tests and the C library: a shared library that comes before it when names are
// looked up, so that the calls of all libraries go through here.
#undef _FORTIFY_SOURCE
#include "FaultySystem/FaultySystem.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <mutex>
#include <new>
#include <pthread.h>
#include <shared_mutex>
#include <string_view>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

namespace testsupport {
namespace {

std::shared_mutex judgeMutex;
std::function<SystemAnswer(const SystemCall&)> currentJudge;
std::atomic<bool> hasJudge = false;
thread_local bool isInside = false;

/// The function that the program would call without this library.
template<typename Function>
Function* next(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

SystemAnswer ask(const SystemCall& call) {
    if (!hasJudge || isInside)
        return {};
    isInside = true;
    SystemAnswer answer;
    {
        const std::shared_lock lock(judgeMutex);
        if (currentJudge)
            answer = currentJudge(call);
    }
    isInside = false;
    return answer;
}

bool isRegularFile(int descriptor) {
    struct stat status = {};
    const int before = errno;
    const bool isFile =
        next<int(int, struct stat*)>("fstat")(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    errno = before;
    return isFile;
}

bool isAskedAbout(int descriptor) {
    return hasJudge && !isInside && isRegularFile(descriptor);
}

/// Makes the call unless it fails without effect.
template<typename Result, typename Make>
Result answered(const SystemAnswer& answer, Result failure, Make make) {
    if (answer.error == 0)
        return make();
    if (answer.isDone)
        make();
    errno = answer.error;
    return failure;
}

int openFile(const char* name, const char* path, int flags, mode_t mode) {
    SystemAnswer answer = ask({.kind = SystemCall::Kind::open, .flags = flags, .path = path});
    answer.isDone = false;
    return answered(answer, -1,
                    [&] { return next<int(const char*, int, ...)>(name)(path, flags, mode); });
}

ssize_t readFile(const char* name, int descriptor, void* data, std::size_t size, off_t offset) {
    SystemAnswer answer;
    if (isAskedAbout(descriptor))
        answer = ask({.kind = SystemCall::Kind::read,
                      .descriptor = descriptor,
                      .size = size,
                      .offset = offset});
    return answered(answer, ssize_t{-1}, [&] {
        return next<ssize_t(int, void*, std::size_t, off_t)>(name)(
            descriptor, data, std::min(size, answer.most), offset);
    });
}

ssize_t writeFile(const char* name, int descriptor, const void* data, std::size_t size,
                  off_t offset) {
    SystemAnswer answer;
    if (isAskedAbout(descriptor))
        answer = ask({.kind = SystemCall::Kind::write,
                      .descriptor = descriptor,
                      .data = data,
                      .size = size,
                      .offset = offset});
    return answered(answer, ssize_t{-1}, [&] {
        return next<ssize_t(int, const void*, std::size_t, off_t)>(name)(
            descriptor, data, std::min(size, answer.most), offset);
    });
}

std::atomic<Allocations> counted = Allocations::none;
std::atomic<long> refused = -1;
std::atomic<long> allocations = 0;

/// Whether this allocation is the one to be refused.
[[maybe_unused]] bool isRefused(Allocations which) {
    return counted == which && allocations++ == refused;
}

/// Whether the code at that address is libav’s.
[[maybe_unused]] bool isLibavs(const void* address) {
    Dl_info place = {};
    return counted == Allocations::libavs && ::dladdr(address, &place) != 0 &&
           std::string_view(place.dli_fname).find("/libav") != std::string_view::npos;
}

} // namespace

void setSystemJudge(std::function<SystemAnswer(const SystemCall&)> judge) {
    const std::unique_lock lock(judgeMutex);
    hasJudge = static_cast<bool>(judge);
    currentJudge = std::move(judge);
}

void refuseAllocation(Allocations which, long number) {
    counted = Allocations::none;
    refused = number;
    allocations = 0;
    counted = which;
}

long allocationsSoFar() {
    return allocations;
}

bool canRefuseAllocations() {
#ifdef BRISKLET_REFUSES_ALLOCATIONS
    return true;
#else
    return false;
#endif
}

} // namespace testsupport

using namespace testsupport;

extern "C" {

int open(const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = va_arg(arguments, mode_t);
    va_end(arguments);
    return openFile("open", path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = va_arg(arguments, mode_t);
    va_end(arguments);
    return openFile("open64", path, flags, mode);
}

ssize_t read(int descriptor, void* data, std::size_t size) {
    SystemAnswer answer;
    if (isAskedAbout(descriptor))
        answer = ask({.kind = SystemCall::Kind::read,
                      .descriptor = descriptor,
                      .size = size,
                      .offset = ::lseek(descriptor, 0, SEEK_CUR)});
    return answered(answer, ssize_t{-1}, [&] {
        return next<ssize_t(int, void*, std::size_t)>("read")(descriptor, data,
                                                              std::min(size, answer.most));
    });
}

ssize_t pread(int descriptor, void* data, std::size_t size, off_t offset) {
    return readFile("pread", descriptor, data, size, offset);
}

ssize_t pread64(int descriptor, void* data, std::size_t size, off_t offset) {
    return readFile("pread64", descriptor, data, size, offset);
}

ssize_t pwrite(int descriptor, const void* data, std::size_t size, off_t offset) {
    return writeFile("pwrite", descriptor, data, size, offset);
}

ssize_t pwrite64(int descriptor, const void* data, std::size_t size, off_t offset) {
    return writeFile("pwrite64", descriptor, data, size, offset);
}

ssize_t write(int descriptor, const void* data, std::size_t size) {
    SystemAnswer answer;
    if (isAskedAbout(descriptor))
        answer = ask({.kind = SystemCall::Kind::write,
                      .descriptor = descriptor,
                      .data = data,
                      .size = size,
                      .offset = ::lseek(descriptor, 0, SEEK_CUR)});
    return answered(answer, ssize_t{-1}, [&] {
        return next<ssize_t(int, const void*, std::size_t)>("write")(descriptor, data,
                                                                     std::min(size, answer.most));
    });
}

void* mmap(void* address, std::size_t size, int protection, int flags, int descriptor,
           off_t offset) noexcept {
    SystemAnswer answer = ask(
        {.kind = SystemCall::Kind::map, .descriptor = descriptor, .size = size, .offset = offset});
    // Nobody unmaps what they were not told of.
    answer.isDone = false;
    // Not by name: looking names up may need memory.
    return answered(answer, MAP_FAILED, [&] {
        return reinterpret_cast<void*>(
            ::syscall(SYS_mmap, address, size, protection, flags, descriptor, offset));
    });
}

void* mmap64(void* address, std::size_t size, int protection, int flags, int descriptor,
             off_t offset) noexcept {
    return mmap(address, size, protection, flags, descriptor, offset);
}

int fsync(int descriptor) {
    return answered(ask({.kind = SystemCall::Kind::flush, .descriptor = descriptor}), -1,
                    [&] { return next<int(int)>("fsync")(descriptor); });
}

int close(int descriptor) {
    SystemAnswer answer;
    if (isAskedAbout(descriptor))
        answer = ask({.kind = SystemCall::Kind::close, .descriptor = descriptor});
    answer.isDone = true;
    return answered(answer, -1, [&] { return next<int(int)>("close")(descriptor); });
}

int fstat(int descriptor, struct stat* status) noexcept {
    return answered(ask({.kind = SystemCall::Kind::status, .descriptor = descriptor}), -1,
                    [&] { return next<int(int, struct stat*)>("fstat")(descriptor, status); });
}

int stat(const char* path, struct stat* status) noexcept {
    return answered(ask({.kind = SystemCall::Kind::status, .path = path}), -1,
                    [&] { return next<int(const char*, struct stat*)>("stat")(path, status); });
}

int lstat(const char* path, struct stat* status) noexcept {
    return answered(ask({.kind = SystemCall::Kind::status, .path = path}), -1,
                    [&] { return next<int(const char*, struct stat*)>("lstat")(path, status); });
}

int flock(int descriptor, int operation) noexcept {
    return answered(ask({.kind = SystemCall::Kind::lock, .descriptor = descriptor}), -1,
                    [&] { return next<int(int, int)>("flock")(descriptor, operation); });
}

int fcntl(int descriptor, int command, ...) {
    std::va_list arguments;
    va_start(arguments, command);
    void* const argument = va_arg(arguments, void*);
    va_end(arguments);
    SystemAnswer answer = ask({.kind = SystemCall::Kind::lock, .descriptor = descriptor});
    // A descriptor that nobody is told of cannot be closed.
    if (command == F_DUPFD_CLOEXEC)
        answer.isDone = false;
    return answered(answer, -1, [&] {
        return next<int(int, int, ...)>("fcntl")(descriptor, command, argument);
    });
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
    return answered(ask({.kind = SystemCall::Kind::link, .path = from, .newPath = to}), -1, [&] {
        return next<int(int, const char*, int, const char*, int)>("linkat")(fromFolder, from,
                                                                            toFolder, to, flags);
    });
}

int rename(const char* from, const char* to) noexcept {
    return answered(ask({.kind = SystemCall::Kind::rename, .path = from, .newPath = to}), -1,
                    [&] { return next<int(const char*, const char*)>("rename")(from, to); });
}

int unlink(const char* path) noexcept {
    return answered(ask({.kind = SystemCall::Kind::unlink, .path = path}), -1,
                    [&] { return next<int(const char*)>("unlink")(path); });
}

int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*run)(void*),
                   void* argument) noexcept {
    const SystemAnswer answer = ask({.kind = SystemCall::Kind::startThread});
    // It fails for no other reason.
    if (answer.error != 0)
        return EAGAIN;
    return next<int(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*)>("pthread_create")(
        thread, attributes, run, argument);
}

#ifdef BRISKLET_REFUSES_ALLOCATIONS

int posix_memalign(void** result, std::size_t alignment, std::size_t size) noexcept {
    static auto* const real = next<int(void**, std::size_t, std::size_t)>("posix_memalign");
    if (isLibavs(__builtin_return_address(0)) && isRefused(Allocations::libavs))
        return ENOMEM;
    return real(result, alignment, size);
}

void* realloc(void* block, std::size_t size) noexcept {
    static auto* const real = next<void*(void*, std::size_t)>("realloc");
    if (isLibavs(__builtin_return_address(0)) && isRefused(Allocations::libavs)) {
        errno = ENOMEM;
        return nullptr;
    }
    return real(block, size);
}

#endif

} // extern "C"

#ifdef BRISKLET_REFUSES_ALLOCATIONS

namespace {

void* allocated(std::size_t size, std::size_t alignment) {
    void* const block =
        isRefused(Allocations::ours)
            ? nullptr
            : std::aligned_alloc(alignment, (size + alignment - 1) / alignment * alignment);
    if (block == nullptr)
        throw std::bad_alloc();
    return block;
}

} // namespace

void* operator new(std::size_t size) {
    return allocated(std::max<std::size_t>(size, 1), __STDCPP_DEFAULT_NEW_ALIGNMENT__);
}

void* operator new(std::size_t size, std::align_val_t alignment) {
    return allocated(std::max<std::size_t>(size, 1), static_cast<std::size_t>(alignment));
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}

void operator delete(void* block, std::align_val_t) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t, std::align_val_t) noexcept {
    std::free(block);
}

#endif
