#include "studio/window/basics/translating.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace {

void Install(const QLocale& locale, const QString& name, const QString& folder)
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(locale, name, QStringLiteral("_"), folder))
        QCoreApplication::installTranslator(translator);
}

} // namespace

void AnimText::Translate(const QLocale& locale)
{
    const QString own = QStringLiteral(":/translations");
    Install(locale, QStringLiteral("qtbase"),
            QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    Install(QLocale(QLocale::English), QStringLiteral("studio"), own); // English plural forms
    Install(locale, QStringLiteral("studio"), own);
}
