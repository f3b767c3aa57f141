// The real program with a user in a hurry, for a test that kills it.
#pragma once

#include "tdata/clsTxtParser.h"

#include <QString>

#include <cstdint>
#include <string>

/// Runs the program with its windows and edits, takes back and saves at random whatever it opens,
/// until it is killed. Each step is told in the log as a line with its time and the state it led
/// to. A box that is not foreseen ends the process.
int DriveProgram(const QString& Log, std::uint32_t Seed);

// What starts the test's own program as that, by the environment
constexpr auto driveLog = "KESH_DRIVE_LOG";
constexpr auto driveSeed = "KESH_DRIVE_SEED";

/// The records as the editor writes them, without its remark.
[[nodiscard]] std::string TextOf(const clsTxtParser& Parser);
/// A text as the log names it.
[[nodiscard]] std::string DigestOf(const std::string& Text);
