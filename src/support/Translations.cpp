#include "support/Translations.h"

#include "platform/files/ApplicationBundle.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace {

QString &loadedLanguage()
{
    static QString language = QStringLiteral("en");
    return language;
}

} // namespace

void translations::load()
{
    const QString folder = platform::ApplicationBundle::main().resource(QStringLiteral("Translations"));
    auto *own = new QTranslator(QCoreApplication::instance());
    if (own->load(QLocale(), QStringLiteral("tessaro"), QStringLiteral("_"), folder))
        loadedLanguage() = own->language().section(u'_', 0, 0);
    else if (!own->load(QStringLiteral("tessaro_en"), folder))
        return;
    QCoreApplication::installTranslator(own);
    auto *toolkit = new QTranslator(QCoreApplication::instance());
    if (language() != u"en" && toolkit->load(QStringLiteral("qtbase_") + language(), folder))
        QCoreApplication::installTranslator(toolkit);
}

QString translations::language()
{
    return loadedLanguage();
}
