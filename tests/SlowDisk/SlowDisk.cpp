// A file system that shows the files of a folder as a bad disk would: slowly, not at all for a
// while, or with errors. It has neither links nor files without a name.
//
//     slow-disk FOLDER MOUNT-POINT BYTES-PER-SECOND
//
// While FOLDER holds a file named "stalled", reading waits, and FOLDER gets a file "awaited"; while
// it holds one named "broken", reading fails; while it holds one named "private", nothing on it may
// be looked at or opened, by no user. Whoever waits can be killed. Ends, and unmounts, with the
// process that started it.
#define FUSE_USE_VERSION 31
#include <fuse.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

std::filesystem::path folder;
double bytesPerSecond = 0;

std::string behind(const char* path) {
    return folder.string() + path;
}

void* setUp(fuse_conn_info*, fuse_config* settings) {
    settings->intr = 1;
    // What is removed while it is open is gone from its folder at once.
    settings->hard_remove = 1;
    settings->nullpath_ok = 1;
    return nullptr;
}

int answer(int result) {
    return result == 0 ? 0 : -errno;
}

bool isPrivate(const char* path) {
    return path != nullptr && std::string(path) != "/" &&
           std::filesystem::exists(folder / "private");
}

int descriptorOf(const fuse_file_info* file) {
    return static_cast<int>(file->fh);
}

int status(const char* path, struct stat* result, fuse_file_info* file) {
    if (isPrivate(path))
        return -EACCES;
    return answer(file ? ::fstat(descriptorOf(file), result)
                       : ::lstat(behind(path).c_str(), result));
}

int list(const char*, void* buffer, fuse_fill_dir_t fill, off_t, fuse_file_info*,
         fuse_readdir_flags) {
    // There is one folder only; of an open one the path is not told.
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        fill(buffer, entry.path().filename().c_str(), nullptr, 0,
             static_cast<fuse_fill_dir_flags>(0));
    return 0;
}

int openAs(const char* path, fuse_file_info* file, int flags, mode_t mode) {
    const int descriptor = ::open(behind(path).c_str(), flags | O_CLOEXEC, mode);
    if (descriptor < 0)
        return -errno;
    file->fh = static_cast<std::uint64_t>(descriptor);
    // Past the kernel's memory of what was read before.
    file->direct_io = 1;
    return 0;
}

int open(const char* path, fuse_file_info* file) {
    if (isPrivate(path))
        return -EACCES;
    return openAs(path, file, file->flags & O_ACCMODE, 0);
}

int create(const char* path, mode_t mode, fuse_file_info* file) {
    return openAs(path, file, (file->flags & O_ACCMODE) | O_CREAT | O_EXCL, mode);
}

int write(const char*, const char* data, std::size_t size, off_t offset, fuse_file_info* file) {
    const ssize_t count = ::pwrite(descriptorOf(file), data, size, offset);
    return count < 0 ? -errno : static_cast<int>(count);
}

int flush(const char*, int, fuse_file_info* file) {
    return answer(::fsync(descriptorOf(file)));
}

int rename(const char* from, const char* to, unsigned) {
    return answer(::rename(behind(from).c_str(), behind(to).c_str()));
}

int removeName(const char* path) {
    return answer(::unlink(behind(path).c_str()));
}

int read(const char*, char* buffer, std::size_t size, off_t offset, fuse_file_info* file) {
    using namespace std::chrono_literals;
    while (std::filesystem::exists(folder / "stalled")) {
        std::ofstream(folder / "awaited");
        if (fuse_interrupted() != 0)
            return -EINTR;
        std::this_thread::sleep_for(5ms);
    }
    if (std::filesystem::exists(folder / "broken"))
        return -EIO;
    const ssize_t count = ::pread(descriptorOf(file), buffer, size, offset);
    if (count < 0)
        return -errno;
    std::this_thread::sleep_for(
        std::chrono::duration<double>(static_cast<double>(count) / bytesPerSecond));
    return static_cast<int>(count);
}

int close(const char*, fuse_file_info* file) {
    return answer(::close(descriptorOf(file)));
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc != 4) {
        std::cerr << "usage: slow-disk FOLDER MOUNT-POINT BYTES-PER-SECOND\n";
        return 2;
    }
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    folder = argv[1];
    bytesPerSecond = std::strtod(argv[3], nullptr);
    fuse_operations operations = {};
    operations.init = setUp;
    operations.getattr = status;
    operations.readdir = list;
    operations.open = open;
    operations.create = create;
    operations.read = read;
    operations.write = write;
    operations.fsync = flush;
    operations.rename = rename;
    operations.unlink = removeName;
    operations.release = close;
    std::string program = argv[0];
    std::string inForeground = "-f";
    std::string mountPoint = argv[2];
    std::array<char*, 3> arguments = {program.data(), inForeground.data(), mountPoint.data()};
    return fuse_main(static_cast<int>(arguments.size()), arguments.data(), &operations, nullptr);
}
