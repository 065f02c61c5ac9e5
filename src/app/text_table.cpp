#include "app/text_table.h"

#include <QCoreApplication>
#include <QTranslator>

namespace ferrow {

bool installTextTable(QCoreApplication &application)
{
    auto *translator = new QTranslator(&application);
    if (!translator->load(QStringLiteral(":/i18n/ferrow_en.qm"))) {
        delete translator;
        return false;
    }
    return QCoreApplication::installTranslator(translator);
}

} // namespace ferrow
