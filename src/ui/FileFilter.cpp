#include "ui/FileFilter.h"

QList<FilterEntry> SplitFilter(const QString& Filter) {
    const QStringList parts = Filter.split(u'|');
    QList<FilterEntry> entries;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList masks;
        for (const QString& mask : parts[i + 1].split(u';', Qt::SkipEmptyParts))
            masks.append(mask.trimmed());
        entries.append({parts[i], masks});
    }
    return entries;
}

QStringList ToolkitFilters(const QString& Filter) {
    QStringList filters;
    for (const FilterEntry& entry : SplitFilter(Filter)) {
        QStringList masks = entry.Masks;
        masks.replaceInStrings(QStringLiteral("*.*"), QStringLiteral("*"));
        const QString label = entry.Label.section(u'(', 0, 0).trimmed();
        filters.append(label + QStringLiteral(" (") + masks.join(u' ') + u')');
    }
    return filters;
}

int FilterForExtension(const QString& Filter, const QString& Extension, int Present) {
    const QString mask = QStringLiteral("*.") + Extension;
    const QList<FilterEntry> entries = SplitFilter(Filter);
    const auto fits = [&](qsizetype i) {
        return i >= 0 && i < entries.size() && entries[i].Masks.contains(mask, Qt::CaseInsensitive);
    };
    if (fits(Present - 1))
        return Present;
    for (qsizetype i = 0; i < entries.size(); ++i)
        if (fits(i))
            return static_cast<int>(i) + 1;
    return Present;
}

QString WithExtension(const QString& Name, const QString& Filter, int FilterIndex) {
    const QList<FilterEntry> entries = SplitFilter(Filter);
    const bool named = Name.section(u'/', -1).section(u'\\', -1).contains(u'.');
    if (named || FilterIndex < 1 || FilterIndex > entries.size())
        return Name;
    const QString extension = entries[FilterIndex - 1].Masks.value(0).mid(1);
    return extension.contains(u'*') ? Name : Name + extension;
}
