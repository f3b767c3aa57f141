#include "tessil/bytes.h"
#include "tessil/decoder.h"
#include "tessil/readers.h"

#include <string>

namespace tessil {

namespace {

// A marker is FF and one of these.
enum Marker : std::uint8_t {
    Frame0 = 0xc0, ///< baseline
    Frame2 = 0xc2, ///< progressive
    Frame15 = 0xcf,
    HuffmanTables = 0xc4,
    Reserved = 0xc8,
    ArithmeticTables = 0xcc,
    Restart0 = 0xd0,
    Restart7 = 0xd7,
    Start = 0xd8,
    End = 0xd9,
    Scan = 0xda,
};

/// A scan of a few bytes costs as much time as one that fills the picture.
constexpr int MaxScans = 64;

/// A table that is longer than its segment is read to its end before it is refused.
constexpr std::size_t LongestTable = 256;

bool isFrame(std::uint8_t marker) {
    return marker >= Frame0 && marker <= Frame15 && marker != HuffmanTables && marker != Reserved &&
           marker != ArithmeticTables;
}

/// Walks from marker to marker. The decoder never returns from a file that ends inside a segment,
/// so it gets only files that are seen to lead to their end.
class Walk {
public:
    explicit Walk(std::string_view file) : m_file(file) {}

    /// Up to the end marker.
    void run() {
        for (std::uint8_t marker = next(); marker != End; marker = next())
            step(marker);
        require(m_size != Size{}, "it has no frame");
    }

    [[nodiscard]] Size size() const noexcept { return m_size; }
    [[nodiscard]] std::size_t end() const noexcept { return m_at; }

private:
    std::uint8_t next() {
        require(m_file.byte(m_at) == 0xff, "a marker is missing");
        while (m_file.byte(m_at) == 0xff)
            ++m_at;
        return m_file.byte(m_at++);
    }

    void step(std::uint8_t marker) {
        if (marker == Start && m_at == 2)
            return;
        require(marker >= Frame0 && (marker < Restart0 || marker > End), "a marker is misplaced");
        const std::size_t length = m_file.big16(m_at);
        require(length >= 2, "a segment has no length");
        static_cast<void>(m_file.part(m_at, length));
        if (isFrame(marker))
            frame(marker);
        m_at += length;
        if (marker == Scan)
            scan();
    }

    void frame(std::uint8_t marker) {
        require(m_size == Size{}, "it has two frames");
        const std::uint8_t precision = m_file.byte(m_at + 2), channels = m_file.byte(m_at + 7);
        if (marker > Frame2 || precision != 8 || (channels != 1 && channels != 3))
            throw Refusal(TESSIL_E_KIND, "JPEG pictures of this kind are not read");
        m_size = checkedSize(m_file.big16(m_at + 5), m_file.big16(m_at + 3));
    }

    /// To the next marker that is not part of the scan's data.
    void scan() {
        require(++m_scans <= MaxScans, "it has too many scans");
        while (m_file.byte(m_at) != 0xff || isData(m_file.byte(m_at + 1)))
            ++m_at;
    }

    static bool isData(std::uint8_t behindFF) {
        return behindFF == 0 || (behindFF >= Restart0 && behindFF <= Restart7);
    }

    Bytes m_file;
    std::size_t m_at = 0;
    Size m_size;
    int m_scans = 0;
};

} // namespace

Picture readJpeg(std::string_view file) {
    Walk walk(file);
    walk.run();
    std::string whole(file.substr(0, walk.end()));
    return decode(Codec::Jpeg, whole.append(LongestTable, '\xff'), walk.size());
}

} // namespace tessil
