// File filters as the editors write them: pairs of label and mask joined by "|", masks by ";".
#pragma once

#include <QtWidgets>

struct FilterEntry {
    QString Label;
    QStringList Masks; ///< "*.txt"
};

QList<FilterEntry> SplitFilter(const QString& Filter);
/// The same entries as the toolkit writes them: "Label (*.a *.b)".
QStringList ToolkitFilters(const QString& Filter);
/// Index (from 1) of the first entry with a mask for this extension, `Present` if that one has it
/// or none does.
int FilterForExtension(const QString& Filter, const QString& Extension, int Present);
/// The name, with the first extension of the entry behind it if it has none.
QString WithExtension(const QString& Name, const QString& Filter, int FilterIndex);
