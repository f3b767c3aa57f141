// The program's state for measuring its windows.
#pragma once

#include "bench/groups.h"

#include <memory>

class UserInterface;

namespace bench {

/// While it lives there are settings, texts and an archive over an empty view, and every question
/// gets the answer No: what is pasted goes to the end.
class Program {
public:
    explicit Program(const Options& options);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    ~Program();

private:
    std::unique_ptr<UserInterface> m_former;
};

} // namespace bench
