// Texts in the user's language.
#pragma once

class QLocale;

/// Installs the translations for a language into the running application: the program's own and the
/// toolkit's. What has none stays English. To be called once, before any window is made.
void InstallTranslations(const QLocale& Language);
