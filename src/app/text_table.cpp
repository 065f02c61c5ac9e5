#include "app/text_table.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace ferrow {

bool installTextTable(QCoreApplication &application)
{
    auto *english = new QTranslator(&application);
    if (!english->load(QStringLiteral(":/i18n/ferrow_en.qm"))) {
        delete english;
        return false;
    }
    if (!QCoreApplication::installTranslator(english))
        return false;
    // Installed last, so it is asked first; a key it lacks falls through to English.
    auto *language = new QTranslator(&application);
    if (language->load(QLocale(), QStringLiteral("ferrow"), QStringLiteral("_"), QStringLiteral(":/i18n")) && language->language() != u"en")
        QCoreApplication::installTranslator(language);
    else
        delete language;
    return true;
}

} // namespace ferrow
