#include "core/SettingsFile.h"

#include "lornfd/platform.h"

#include <QByteArray>
#include <QByteArrayView>

#include <algorithm>

namespace {

constexpr std::string_view RootSection = "General";
constexpr QByteArrayView ByteOrderMark = "\xEF\xBB\xBF";
constexpr char EncodedSign = '@';

QByteArrayView viewOf(std::string_view text) {
    return {text.data(), static_cast<qsizetype>(text.size())};
}

std::string unescaped(QByteArrayView name) {
    return QByteArray::fromPercentEncoding(name.toByteArray()).toStdString();
}

/// A name without any character that means something in the file, `plain` ones excepted.
std::string escaped(std::string_view name, const QByteArray& plain) {
    const QByteArrayView view = viewOf(name);
    const bool blankEnds = view.trimmed().size() != view.size();
    return view.toByteArray().toPercentEncoding(blankEnds ? plain : plain + ' ').toStdString();
}

std::string keyOf(QByteArrayView section) {
    return section == viewOf(RootSection) ? std::string() : unescaped(section);
}

std::string sectionOf(std::string_view key) {
    if (key.empty())
        return std::string(RootSection);
    // A key that is spelled as the root's section is told from it by an escape.
    return key == RootSection ? "%47eneral" : escaped(key, "\\");
}

std::string decoded(QByteArrayView text) {
    if (text.startsWith(EncodedSign))
        return unescaped(text.sliced(1));
    const bool quoted = text.size() >= 2 && text.startsWith('"') && text.endsWith('"');
    return (quoted && text.count('"') == 2 ? text.sliced(1, text.size() - 2) : text)
        .toByteArray()
        .toStdString();
}

std::string encoded(const std::string& value) {
    const bool control = std::ranges::any_of(value, [](char c) { return c >= '\0' && c < ' '; });
    if (!control && decoded(viewOf(value).trimmed()) == value)
        return value;
    return EncodedSign + viewOf(value).toByteArray().toPercentEncoding().toStdString();
}

/// Cuts the first line off a text and gives it without the blanks around it.
QByteArrayView takeLine(QByteArrayView& text) {
    const qsizetype end = text.indexOf('\n');
    const QByteArrayView line = end < 0 ? text : text.first(end);
    text = end < 0 ? QByteArrayView() : text.sliced(end + 1);
    return line.trimmed();
}

} // namespace

SettingsMap ReadSettings(std::string_view Text) {
    QByteArrayView rest = viewOf(Text);
    if (rest.startsWith(ByteOrderMark))
        rest = rest.sliced(ByteOrderMark.size());
    SettingsMap map;
    std::string key;
    while (!rest.isEmpty()) {
        const QByteArrayView line = takeLine(rest);
        const qsizetype equals = line.indexOf('=');
        if (line.startsWith('[') && line.endsWith(']')) {
            key = keyOf(line.sliced(1, line.size() - 2).trimmed());
        } else if (equals >= 0 && !line.startsWith(';') && !line.startsWith('#')) {
            std::string name = unescaped(line.first(equals).trimmed());
            if (std::max(key.size(), name.size()) <= LongestSettingsName)
                map[key][std::move(name)] = decoded(line.sliced(equals + 1).trimmed());
        }
    }
    return map;
}

std::string WriteSettings(const SettingsMap& Map) {
    std::string text;
    for (const auto& [key, values] : Map) {
        text.append(text.empty() ? "" : "\n").append("[" + sectionOf(key) + "]\n");
        for (const auto& [name, value] : values)
            text.append(escaped(name, {})).append("=").append(encoded(value)).append("\n");
    }
    return text;
}

std::optional<SettingsMap> LoadSettings(const std::string& File) {
    lornfd::platform::File file;
    const std::error_code error = file.open(File);
    if (error == std::errc::no_such_file_or_directory)
        return SettingsMap();
    lornfd::platform::FileStamp stamp;
    if (error || file.stamp(stamp) || !stamp.regular ||
        stamp.size > std::int64_t{LargestSettingsFile})
        return {};
    // One byte more than it should have tells whether it grew meanwhile.
    std::string text(static_cast<std::size_t>(stamp.size) + 1, '\0');
    std::size_t got = 0;
    if (file.read(0, text.data(), text.size(), got) || got + 1 != text.size())
        return {};
    text.pop_back();
    return ReadSettings(text);
}
