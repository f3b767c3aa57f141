#include "keshobjects/keshobjects.h"
#include "keshobjects/places.h"

#include <algorithm>

namespace keshobjects {
namespace {

constexpr char quote = '"';
constexpr char backslash = '\\';

/// Cuts one command line into its arguments.
class Splitter {
public:
    explicit Splitter(std::string_view line) : m_rest(line) {}

    bool toNextArgument() {
        m_rest.remove_prefix(lengthOf(isBlank));
        return !m_rest.empty();
    }

    std::string argument() {
        std::string argument;
        bool quoted = false;
        while (!m_rest.empty() && (quoted || !isBlank(m_rest.front()))) {
            if (takeBackslashes(argument))
                continue;
            if (m_rest.front() != quote) {
                take(1, argument);
            } else if (quoted && m_rest.starts_with("\"\"")) {
                take(1, argument);
                m_rest.remove_prefix(1);
            } else {
                quoted = !quoted;
                m_rest.remove_prefix(1);
            }
        }
        return argument;
    }

private:
    template <typename Test>
    [[nodiscard]] std::size_t lengthOf(Test test) const {
        return static_cast<std::size_t>(std::find_if_not(m_rest.begin(), m_rest.end(), test) -
                                        m_rest.begin());
    }

    void take(std::size_t count, std::string& argument) {
        argument += m_rest.substr(0, count);
        m_rest.remove_prefix(count);
    }

    /// Takes a run of backslashes, and the quote behind an odd one. False if there is none.
    bool takeBackslashes(std::string& argument) {
        const std::size_t count = lengthOf([](char c) { return c == backslash; });
        const bool beforeQuote = count < m_rest.size() && m_rest[count] == quote;
        argument.append(beforeQuote ? count / 2 : count, backslash);
        m_rest.remove_prefix(count);
        if (beforeQuote && count % 2 == 1)
            take(1, argument);
        return count > 0;
    }

    std::string_view m_rest;
};

std::string quoteArgument(std::string_view argument) {
    std::string quoted(1, quote);
    std::size_t backslashes = 0;
    for (const char c : argument) {
        if (c == quote)
            quoted.append(backslashes + 1, backslash);
        backslashes = c == backslash ? backslashes + 1 : 0;
        quoted += c;
    }
    quoted.append(backslashes, backslash);
    return quoted + quote;
}

bool needsQuotes(std::string_view argument) {
    return argument.empty() || argument.find(quote) != argument.npos ||
           std::any_of(argument.begin(), argument.end(), isBlank);
}

} // namespace
} // namespace keshobjects

std::vector<std::string> Kesh_CommandLineToArgV(std::string_view CommandLine) {
    keshobjects::Splitter splitter(CommandLine);
    std::vector<std::string> arguments;
    while (splitter.toNextArgument())
        arguments.push_back(splitter.argument());
    return arguments;
}

std::string Kesh_ArgVToCommandLine(const std::vector<std::string>& Arguments) {
    std::string line;
    for (const std::string& argument : Arguments) {
        line += line.empty() ? "" : " ";
        line +=
            keshobjects::needsQuotes(argument) ? keshobjects::quoteArgument(argument) : argument;
    }
    return line;
}
