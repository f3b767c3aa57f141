// The program's own pictures, drawn to stand on light and dark ground.
#pragma once

#include <QIcon>

/// By the key of a tool or launcher item ("open", "te"); "empty" for a key without a picture.
QIcon ToolIcon(const char* Key);
