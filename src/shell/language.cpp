#include "language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QPointer>
#include <QTranslator>

namespace Language {
namespace {
const QString kProgramFile = QStringLiteral("partitude");
const QString kQtFile = QStringLiteral("qtbase");
const QString kSeparator = QStringLiteral("_");

QPointer<QTranslator> g_program;
QPointer<QTranslator> g_qt;

// A translator loaded from `folder` for the first language of `locale` that
// has a file there, installed and owned by the application; nullptr if none.
QTranslator* installed(const QLocale& locale, const QString& file, const QString& folder)
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(locale, file, kSeparator, folder) && QCoreApplication::installTranslator(translator))
        return translator;
    delete translator;
    return nullptr;
}
} // namespace

QString install(const QLocale& locale, const QString& folder)
{
    remove();
    g_program = installed(locale, kProgramFile, folder);
    // A language the program does not speak gets the English it is written
    // in, with that file's singular and plural forms.
    if (!g_program)
        g_program = installed(QLocale(QLocale::English, QLocale::UnitedKingdom), kProgramFile, folder);
    g_qt = installed(locale, kQtFile, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    return g_program ? g_program->language() : QString();
}

void remove()
{
    for (QPointer<QTranslator>* t : {&g_program, &g_qt}) {
        if (*t) {
            QCoreApplication::removeTranslator(*t);
            delete t->data();
        }
    }
}

} // namespace Language
