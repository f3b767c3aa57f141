// Recovery journals: the input is a row of payloads, each behind its length in two bytes, which are
// given sound frames here, since no random bytes have them. What is read must be what was written,
// so it writes the same bytes again, and a cut must leave a beginning of it.
#include "txteditor/JournalFormat.h"

#include <cstdlib>
#include <libdeflate.h>

namespace {

void require(bool holds) {
    if (!holds)
        std::abort();
}

std::string framed(std::string_view payload) {
    std::string frame(8, '\0');
    frame[0] = static_cast<char>(payload.size() & 0xFF);
    frame[1] = static_cast<char>(payload.size() >> 8);
    std::uint32_t sum = libdeflate_crc32(0, frame.data(), frame.size());
    if (!payload.empty())
        sum = libdeflate_crc32(sum, payload.data(), payload.size());
    for (int i = 0; i < 4; ++i)
        frame += static_cast<char>(sum >> (8 * i) & 0xFF);
    return frame += payload;
}

std::string journalOf(std::string_view input) {
    std::string journal(JournalSignature);
    while (input.size() >= 2) {
        const auto length = static_cast<unsigned char>(input[0]) +
                            std::size_t{256} * static_cast<unsigned char>(input[1]);
        const std::string_view payload = input.substr(2, length);
        journal += framed(payload);
        input.remove_prefix(2 + payload.size());
    }
    return journal;
}

std::string written(const JournalContent& content) {
    std::string bytes;
    for (const JournalPart& part : content.Parts) {
        bytes += JournalEntry(part.Base);
        for (const RecordSteps& steps : part.Commands)
            bytes += JournalEntry(steps);
    }
    return bytes;
}

void look(std::string_view bytes) {
    const JournalContent content = ReadJournal(bytes);
    const std::string again = written(content);
    if (!content.Parts.empty())
        require(bytes.substr(0, content.Length) == std::string(JournalSignature) + again);
    require(again.starts_with(written(ReadJournal(bytes.substr(0, content.Length / 2)))));
    for (const JournalPart& part : content.Parts)
        static_cast<void>(StepsFit(1000, part.Commands));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    look(input);
    look(journalOf(input));
    return 0;
}
