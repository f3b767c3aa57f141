// What all commands share: the view behind "vfs://", open files, output, and how they fail.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

enum ExitCode { Done = 0, Findings = 1, WrongUsage = 2, Failed = 3 };

/// Ends a command with exit code 3 (or another); the text is the whole message.
class Failure : public std::runtime_error {
public:
    explicit Failure(const std::string& text, ExitCode exitCode = Failed)
        : std::runtime_error(text), code(exitCode) {}
    const ExitCode code;
};

/// The game's files as the options --data and --mod lay them over each other; built when first
/// needed.
class GameView {
public:
    std::string dataRoot;
    std::vector<std::string> mods;

    /// Throws Failure if the data root or a mod cannot be read. Broken catalogs of the data root
    /// are told on standard error; gives true if there were any.
    bool build();
    /// The plain or catalog path of a path as it stands on the command line, in the program's form.
    [[nodiscard]] std::string realPath(std::string_view path);

private:
    bool m_built = false;
    bool m_warned = false;
};

/// A file opened for reading; throws Failure if that fails.
class InputFile {
public:
    explicit InputFile(const std::string& path);
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    [[nodiscard]] std::int32_t handle() const noexcept { return m_handle; }
    /// The unpacked content, valid while this lives.
    [[nodiscard]] std::string_view content() const;
    /// Hands the content piece by piece to `take`.
    template <class Take>
    void read(Take take) const {
        std::vector<char> block(BlockSize);
        while (const std::size_t size = readBlock(block))
            take(std::string_view(block.data(), size));
    }

private:
    static constexpr std::size_t BlockSize = std::size_t{1} << 20;
    [[nodiscard]] std::size_t readBlock(std::vector<char>& block) const;

    std::int32_t m_handle;
};

/// New content of a file; nothing happens to the file before commit.
class OutputFile {
public:
    OutputFile(const std::string& path, std::int32_t fileType);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    [[nodiscard]] std::int32_t handle() const noexcept { return m_handle; }
    void write(std::string_view bytes);
    void commit();

private:
    std::int32_t m_handle;
};

/// Writes to standard output; throws Failure if that is full or gone.
void print(std::string_view text);
/// Writes a message of one line to standard error.
void complain(std::string_view text);
/// The text without line breaks.
std::string oneLine(std::string_view text);
