#include "txteditor/JournalFormat.h"

#include <concepts>
#include <libdeflate.h>
#include <limits>
#include <utility>

namespace {

constexpr char baseEntry = 'B';
constexpr char commandEntry = 'C';
constexpr std::size_t lengthSize = sizeof(std::uint64_t);
constexpr std::size_t leastValueSize = 1 + sizeof(std::uint32_t);

template <std::unsigned_integral Number>
void append(std::string& bytes, Number number) {
    for (std::size_t i = 0; i < sizeof(Number); ++i)
        bytes += static_cast<char>(number >> (8 * i) & 0xFF);
}

void append(std::string& bytes, std::string_view text) {
    append(bytes, static_cast<std::uint32_t>(text.size()));
    bytes += text;
}

void append(std::string& bytes, const clsValueArray& values) {
    append(bytes, values.Size());
    for (std::uint32_t i = 0; i < values.Size(); ++i) {
        append(bytes, static_cast<std::uint8_t>(values.Kind(i)));
        append(bytes, values.Spelling(i));
    }
}

std::uint32_t checksumOf(std::string_view length, std::string_view payload) {
    // The length counts too: a run of zeros, as a lost block leaves it, is no sound empty entry.
    const std::uint32_t sum = libdeflate_crc32(0, length.data(), length.size());
    return payload.empty() ? sum : libdeflate_crc32(sum, payload.data(), payload.size());
}

std::string framed(const std::string& payload) {
    std::string entry;
    append(entry, std::uint64_t{payload.size()});
    append(entry, checksumOf(entry, payload));
    return entry + payload;
}

/// Reads numbers and texts; what is not there makes it bad, and gives nothing.
class Cursor {
public:
    explicit Cursor(std::string_view bytes) : m_bytes(bytes) {}

    [[nodiscard]] bool Good() const noexcept { return m_good; }
    [[nodiscard]] std::size_t Left() const noexcept { return m_bytes.size(); }
    std::string_view Bytes(std::uint64_t count) {
        m_good = m_good && count <= m_bytes.size();
        const std::string_view taken = m_bytes.substr(0, m_good ? count : 0);
        m_bytes.remove_prefix(taken.size());
        return taken;
    }
    template <std::unsigned_integral Number>
    Number Read() {
        std::uint64_t number = 0;
        std::size_t shift = 0;
        for (const char byte : Bytes(sizeof(Number)))
            number |= std::uint64_t{static_cast<unsigned char>(byte)} << (8 * shift++);
        return static_cast<Number>(number);
    }
    std::string_view Text() { return Bytes(Read<std::uint32_t>()); }
    /// A number of which none is above `largest`.
    template <std::unsigned_integral Number>
    Number UpTo(std::uint64_t largest) {
        const auto number = Read<Number>();
        m_good = m_good && number <= largest;
        return m_good ? number : 0;
    }

private:
    std::string_view m_bytes;
    bool m_good = true;
};

clsValueArray readValues(Cursor& from) {
    std::vector<SpelledValue> values;
    const auto count = from.UpTo<std::uint32_t>(from.Left() / leastValueSize);
    values.reserve(count);
    for (std::uint32_t i = 0; i < count && from.Good(); ++i) {
        const auto kind = static_cast<ValueKind>(
            from.UpTo<std::uint8_t>(static_cast<std::uint8_t>(ValueKind::Unset)));
        const auto length = from.UpTo<std::uint32_t>(kind == ValueKind::Unset ? 0 : from.Left());
        values.push_back({from.Bytes(length), kind});
    }
    return clsValueArray(values);
}

RecordStep readStep(Cursor& from) {
    using Kind = RecordStep::Kind;
    RecordStep step;
    step.What = static_cast<Kind>(from.UpTo<std::uint8_t>(static_cast<std::uint8_t>(Kind::Remove)));
    step.Index = static_cast<std::int32_t>(
        from.UpTo<std::uint32_t>(std::numeric_limits<std::int32_t>::max()));
    if (step.What != Kind::Remove)
        step.Values = readValues(from);
    return step;
}

JournalBase readBase(Cursor& from) {
    JournalBase base;
    base.ObjectType = static_cast<std::int32_t>(from.Read<std::uint32_t>());
    base.Document = from.Text();
    base.StoredPath = from.Text();
    if (from.UpTo<std::uint8_t>(1) == 1) {
        base.Content.emplace();
        base.Content->Size =
            static_cast<std::int64_t>(from.UpTo<std::uint64_t>(std::uint64_t{1} << 62));
        base.Content->Checksum = from.Read<std::uint32_t>();
    }
    return base;
}

/// False if the entry is none that was written here, or tells of a change to nothing.
bool takeEntry(std::string_view payload, std::vector<JournalPart>& parts) {
    Cursor from(payload);
    const char kind = static_cast<char>(from.Read<std::uint8_t>());
    if (kind == baseEntry) {
        JournalPart part{readBase(from), {}};
        if (!from.Good() || from.Left() != 0)
            return false;
        parts.push_back(std::move(part));
        return true;
    }
    if (kind != commandEntry || parts.empty() || from.Left() == 0)
        return false;
    RecordSteps steps;
    while (from.Good() && from.Left() != 0)
        steps.push_back(readStep(from));
    if (from.Good())
        parts.back().Commands.push_back(std::move(steps));
    return from.Good();
}

} // namespace

std::string JournalEntry(const JournalBase& Base) {
    std::string payload(1, baseEntry);
    append(payload, static_cast<std::uint32_t>(Base.ObjectType));
    append(payload, std::string_view(Base.Document));
    append(payload, std::string_view(Base.StoredPath));
    append(payload, static_cast<std::uint8_t>(Base.Content ? 1 : 0));
    if (Base.Content) {
        append(payload, static_cast<std::uint64_t>(Base.Content->Size));
        append(payload, Base.Content->Checksum);
    }
    return framed(payload);
}

std::string JournalEntry(const RecordSteps& Steps) {
    std::string payload(1, commandEntry);
    for (const RecordStep& step : Steps) {
        append(payload, static_cast<std::uint8_t>(step.What));
        append(payload, static_cast<std::uint32_t>(step.Index));
        if (step.What != RecordStep::Kind::Remove)
            append(payload, step.Values);
    }
    return framed(payload);
}

JournalContent ReadJournal(std::string_view Bytes) {
    JournalContent content;
    if (!Bytes.starts_with(JournalSignature))
        return content;
    Cursor from(Bytes.substr(JournalSignature.size()));
    for (;;) {
        content.Length = Bytes.size() - from.Left();
        const std::string_view length = from.Bytes(lengthSize);
        const auto sum = from.Read<std::uint32_t>();
        const std::string_view payload = from.Bytes(Cursor(length).Read<std::uint64_t>());
        if (!from.Good() || sum != checksumOf(length, payload) ||
            !takeEntry(payload, content.Parts))
            return content;
    }
}

bool StepsFit(std::size_t Records, const std::vector<RecordSteps>& Commands) {
    auto count = static_cast<std::int64_t>(Records);
    for (const RecordSteps& steps : Commands)
        for (const RecordStep& step : steps) {
            const bool inserts = step.What == RecordStep::Kind::Insert;
            if (step.Index < 0 || step.Index >= count + (inserts ? 1 : 0))
                return false;
            count += inserts ? 1 : step.What == RecordStep::Kind::Remove ? -1 : 0;
        }
    return true;
}
