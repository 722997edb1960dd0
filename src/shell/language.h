#pragma once
// The language the screens speak. Every text a person reads is written in
// English (United Kingdom) in the code and goes through Qt's translation;
// the compiled translations are built into the program under ":/i18n"
// (translations/README.md says how they are made and checked).
#include <QLocale>
#include <QString>

namespace Language {

// Where the program's compiled translations are: partitude_<language>.qm.
inline const QString kFolder = QStringLiteral(":/i18n");

// Installs the program's translation for the first of `locale`'s languages
// that has one, and Qt's own translation for its standard buttons where Qt
// has one installed. Without a translation for any of them the program
// speaks English (United Kingdom); without even that file it carries on with
// the English texts in the code, silently. Replaces the translations an
// earlier call installed. Returns the language installed ("fr", "en_GB"),
// or an empty text when none was found. Needs the application object.
// `folder` is where the program's translations are looked for.
QString install(const QLocale& locale = QLocale::system(), const QString& folder = kFolder);

// Takes the translations out again: the texts in the code are shown.
void remove();

} // namespace Language
