#include "recording/Readers.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>

namespace barquell::recording {

namespace {

std::string reason(int error) {
    return std::generic_category().message(error);
}

class File {
public:
    /// Nothing else than a regular file may make us wait for a writer.
    explicit File(const std::filesystem::path &path)
        : _handle(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)),
          _error(_handle < 0 ? errno : 0) {}
    ~File() {
        if (_handle >= 0) {
            ::close(_handle);
        }
    }
    File(const File &) = delete;
    File &operator=(const File &) = delete;

    [[nodiscard]] int error() const { return _error; }

    [[nodiscard]] bool isRegular() const {
        struct stat status {};
        return ::fstat(_handle, &status) == 0 && S_ISREG(status.st_mode);
    }

    /// The bytes from a place on; 0 at the end, and for an error, which is kept.
    std::size_t read(std::span<char> buffer, std::size_t from) {
        ssize_t size = -1;
        do {
            size = ::pread(_handle, buffer.data(), buffer.size(), static_cast<off_t>(from));
        } while (size < 0 && errno == EINTR);
        if (size < 0) {
            _error = errno;
        }
        return size < 0 ? 0 : static_cast<std::size_t>(size);
    }

private:
    int _handle = -1;
    int _error = 0;
};

enum class Format { Evemu, Libinput, Neither };

/// By the line that the recorder begins with, or else by the first line that is no comment.
Format formatOf(std::string_view start) {
    while (!start.empty()) {
        const std::string_view line = start.substr(0, start.find_first_of("\r\n"));
        if (line.starts_with("# EVEMU") || line.starts_with("N:") || line.starts_with("E:")) {
            return Format::Evemu;
        }
        for (const std::string_view key :
             {"# libinput record", "version:", "ndevices:", "libinput:", "system:", "devices:"}) {
            if (line.starts_with(key)) {
                return Format::Libinput;
            }
        }
        if (!line.empty() && !line.starts_with('#') && line != "---") {
            break;
        }
        start.remove_prefix(std::min(line.size() + 1, start.size()));
    }
    return Format::Neither;
}

Recording complaint(std::string what) {
    return {{}, std::move(what)};
}

Recording readOpened(File &file) {
    std::array<char, 16U << 10U> start{};
    const std::string_view text(start.data(), file.read(start, 0));
    if (text.empty()) {
        return complaint("empty");
    }
    const Format format = formatOf(text);
    if (format == Format::Neither) {
        return complaint("neither an evemu nor a libinput recording");
    }
    const ByteSource source = [&file, place = std::size_t{0}](std::span<char> buffer) mutable {
        const std::size_t size = file.read(buffer, place);
        place += size;
        return size;
    };
    return format == Format::Evemu ? readEvemu(source) : readLibinputRecord(source);
}

} // namespace

Recording readRecording(const std::filesystem::path &path) {
    File file(path);
    if (file.error() != 0) {
        return complaint("cannot be opened: " + reason(file.error()));
    }
    if (!file.isRegular()) {
        return complaint("not a regular file");
    }
    Recording recording = readOpened(file);
    if (file.error() != 0) {
        recording.complaint = "cannot be read: " + reason(file.error()); // not cut short, as it looked
    }
    return recording;
}

} // namespace barquell::recording
