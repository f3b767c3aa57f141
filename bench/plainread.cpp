#include "bench/plainread.h"

#include "bench/tfile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace bench {

Bytes readPlain(const std::string& path) {
    Bytes bytes;
    readPlain(path, bytes);
    return bytes;
}

void readPlain(const std::string& path, Bytes& bytes) {
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat status {};
    if (file < 0 || ::fstat(file, &status) != 0)
        fail("cannot open " + path);
    const auto size = static_cast<std::size_t>(status.st_size);
    if (!bytes.data || bytes.size != size)
        bytes = {std::unique_ptr<char[]>(new char[size]), size};
    for (std::size_t done = 0; done < bytes.size;) {
        const ssize_t count = ::read(file, bytes.data.get() + done, bytes.size - done);
        if (count <= 0)
            fail("cannot read " + path);
        done += static_cast<std::size_t>(count);
    }
    ::close(file);
}

} // namespace bench
