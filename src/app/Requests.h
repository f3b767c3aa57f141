// What a command line asks for. No windows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

enum class FileKind { Unknown, TFile, GalaxyMap, Xml };

/// "-TFile", "/map" and so on; any other text, or none, goes by the file's name.
FileKind FileKindOf(const std::string& File, std::string_view Type);

/// Puts arguments into one text for another process: a relative plain file name is made absolute,
/// in the program's form.
std::string RequestOf(std::vector<std::string> Arguments, const std::string& WorkingDirectory);

/// What stands in front of a command line that travels to another instance.
inline constexpr std::string_view RequestPrefix = "keshe://";
