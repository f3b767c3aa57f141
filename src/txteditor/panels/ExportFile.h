// The way of an export: where to, whether to replace, and what is said when it fails.
#pragma once

#include "tdata/clsTxtParser.h"

#include <QtWidgets>

#include <cstdint>
#include <functional>
#include <string>

struct ExportRequest {
    QString Title;         ///< of the dialog and of the boxes
    QString Filter;        ///< pairs of label and mask joined by "|"
    std::string Kind;      ///< under this name the last directory is kept; empty: that of the file
    QString Overwriting;   ///< why the open file itself cannot be the target
    bool LongWork = false; ///< the wait window shows
    /// Writes to an open file handle, in the form of a filter, counted from 1; gives what went
    /// wrong, empty if nothing did.
    std::function<std::string(std::int32_t File, int Filter)> Write;
};

/// Asks where to and writes there, under the name of `Source` with "_export.txt" unless another is
/// chosen. True only when all is written; failures are said in a box.
bool ExportFile(QWidget* Owner, const clsTxtParser& Source, const ExportRequest& Request);
