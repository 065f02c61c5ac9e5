#include "app/text_table.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <utility>

namespace ferrow {
namespace {

// Each text that names the machine a Mac, and its key for any other computer.
constexpr std::pair<const char *, const char *> kComputerWords[] = {
    {"power.mac_system", "power.computer_system"},
    {"battery.desktop_description", "battery.computer_external_only"},
    {"battery.not_detected_description", "battery.computer_external_only"},
    {"overview.no_battery_subtitle", "overview.computer_no_battery_subtitle"},
    {"device.title", "device.computer_title"},
};

class ComputerWords final : public QTranslator {
public:
    ComputerWords(QList<QTranslator *> tables, QObject *parent)
        : QTranslator(parent)
        , m_tables(std::move(tables))
    {
    }

    QString translate(const char *context, const char *key, const char *disambiguation, int n) const override
    {
        for (const auto &[mac, computer] : kComputerWords) {
            if (qstrcmp(key, mac) != 0)
                continue;
            // The tables themselves, the language's before English, as the application asks them.
            for (auto table = m_tables.crbegin(); table != m_tables.crend(); ++table)
                if (QString text = (*table)->translate(context, computer, disambiguation, n); !text.isNull())
                    return text;
        }
        return {};
    }
    bool isEmpty() const override { return false; }

private:
    QList<QTranslator *> m_tables;
};

} // namespace

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

void nameMachineAComputer(QCoreApplication &application)
{
    const QList<QTranslator *> tables = application.findChildren<QTranslator *>(Qt::FindDirectChildrenOnly);
    QCoreApplication::installTranslator(new ComputerWords(tables, &application));
}

} // namespace ferrow
