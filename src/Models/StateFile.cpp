#include "Models/StateFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace brisklet {

namespace {

namespace fs = std::filesystem;

/// An open file. close() says whether all went well up to there.
class Descriptor final {
public:
    Descriptor(const fs::path& path, int flags)
        : m_number(
              ::open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, S_IRUSR | S_IWUSR)) {}

    ~Descriptor() { close(); }

    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] bool isOpen() const { return m_number >= 0; }

    [[nodiscard]] int number() const { return m_number; }

    [[nodiscard]] bool isRegular() const {
        struct stat status = {};
        return isOpen() && ::fstat(m_number, &status) == 0 && S_ISREG(status.st_mode);
    }

    bool write(std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t written = ::write(m_number, bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR)
                continue;
            if (written <= 0)
                return false;
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
        return true;
    }

    bool sync() { return ::fsync(m_number) == 0; }

    bool close() { return !isOpen() || ::close(std::exchange(m_number, -1)) == 0; }

private:
    int m_number;
};

bool writeWhole(const fs::path& path, std::string_view bytes) {
    Descriptor file(path, O_WRONLY | O_CREAT | O_TRUNC);
    return file.isRegular() && file.write(bytes) && file.sync() && file.close();
}

/// So that the names in it outlive a power cut.
bool syncFolder(const fs::path& path) {
    Descriptor folder(path, O_RDONLY | O_DIRECTORY);
    return folder.isOpen() && folder.sync();
}

} // namespace

bool makeStateFolder(const fs::path& folder) {
    if (folder.empty())
        return false;
    std::error_code error;
    if (fs::create_directories(folder, error)) {
        fs::permissions(folder, fs::perms::owner_all, error);
        syncFolder(folder.parent_path());
    }
    return fs::is_directory(folder, error);
}

std::optional<std::string> readStateFile(const fs::path& path, std::size_t most) {
    const Descriptor file(path, O_RDONLY);
    if (!file.isOpen() && errno == ENOENT)
        return std::string();
    if (!file.isRegular())
        return std::nullopt;
    std::string bytes;
    ssize_t got = 1;
    while (got != 0 && bytes.size() < most) {
        constexpr std::size_t kPiece = 65536;
        const std::size_t before = bytes.size();
        bytes.resize(std::min(before + kPiece, most));
        do
            got = ::read(file.number(), bytes.data() + before, bytes.size() - before);
        while (got < 0 && errno == EINTR);
        if (got < 0)
            return std::nullopt;
        bytes.resize(before + static_cast<std::size_t>(got));
    }
    return bytes;
}

bool replaceStateFile(const fs::path& path, std::string_view bytes) {
    const fs::path fresh = path.native() + ".new";
    if (!writeWhole(fresh, bytes) || ::rename(fresh.c_str(), path.c_str()) != 0) {
        ::unlink(fresh.c_str());
        return false;
    }
    return syncFolder(path.parent_path());
}

bool setAsideStateFile(const fs::path& path, const fs::path& name) {
    ::unlink(name.c_str());
    return ::link(path.c_str(), name.c_str()) == 0 || ::rename(path.c_str(), name.c_str()) == 0;
}

} // namespace brisklet
