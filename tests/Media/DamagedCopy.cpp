#include "Media/DamagedCopy.h"

#include "TestSupport/Process.h"

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

void copyDamaged(const std::filesystem::path& source, int number,
                 const std::filesystem::path& destination) {
    copyDamaged(source, number, number, destination);
}

void copyDamaged(const std::filesystem::path& source, int first, int last,
                 const std::filesystem::path& destination) {
    std::istringstream packets(
        testsupport::runProcessOrThrow({"ffprobe", "-v", "error", "-select_streams", "v:0",
                                        "-show_entries", "packet=size,pos", "-of",
                                        "csv=print_section=0", source.string()})
            .output);
    std::filesystem::copy_file(source, destination);
    std::fstream file(destination, std::ios::in | std::ios::out | std::ios::binary);
    std::string line;
    for (int number = 0; number <= last; ++number) {
        std::getline(packets, line);
        if (number < first)
            continue;
        const std::size_t comma = line.find(',');
        if (comma == std::string::npos)
            throw std::runtime_error("There is no such packet: " + line);
        file.seekp(std::stoll(line.substr(comma + 1)));
        file << std::string(std::stoul(line.substr(0, comma)), '\xff');
    }
    if (!file.flush())
        throw std::runtime_error("Cannot write " + destination.string());
}
