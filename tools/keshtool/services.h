// What commands ask about the game beside its files.
#pragma once

#include "textres/clsDescServer.h"
#include "tool.h"

#include <cstdint>

/// The files that others refer to, and the texts, for the time of a command.
class Services {
public:
    Services();
    ~Services();
    Services(const Services&) = delete;
    Services& operator=(const Services&) = delete;
};

/// Fills the store with a language's files in the view. What is wrong with single files is told on
/// standard error and makes the exit code.
ExitCode loadTexts(GameView& view, clsDescServer& server, std::int32_t language);
