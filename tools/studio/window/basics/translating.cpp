#include "studio/window/basics/translating.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

void AnimText::studio::window::basics::Translate(const QLocale& locale)
{
    const auto install = [](const QLocale& spoken, const QString& name, const QString& folder) {
        auto* translator = new QTranslator(QCoreApplication::instance());
        if (translator->load(spoken, name, "_", folder))
            QCoreApplication::installTranslator(translator);
    };
    install(locale, "qtbase", QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    install(QLocale(QLocale::English), "studio", ":/translations"); // English plural forms
    install(locale, "studio", ":/translations");
}
