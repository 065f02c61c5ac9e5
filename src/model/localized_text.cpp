#include "model/localized_text.h"

#include <QtGlobal>

#include <algorithm>
#include <limits>

namespace ferrow {

QString localizedText(const char *key)
{
    return qtTrId(key);
}

QString localizedFormat(const char *key, std::initializer_list<std::int64_t> arguments)
{
    QString text = qtTrId(key);
    for (const std::int64_t argument : arguments) {
        // A missing text is the bare key: leave it as it is rather than provoke arg()'s warning.
        if (!text.contains(u'%'))
            break;
        text = text.arg(static_cast<qlonglong>(argument));
    }
    return text;
}

namespace {

QString withTexts(QString text, std::initializer_list<QString> arguments)
{
    for (const QString &argument : arguments) {
        // A missing text is the bare key: leave it as it is rather than provoke arg()'s warning.
        if (!text.contains(u'%'))
            break;
        text = text.arg(argument);
    }
    return text;
}

} // namespace

QString localizedCount(const char *key, std::int64_t count)
{
    // The text table counts in int; no count shown here comes near its limit.
    return qtTrId(key, static_cast<int>(std::clamp<std::int64_t>(count, 0, std::numeric_limits<int>::max())));
}

QString localizedFormatText(const char *key, std::initializer_list<QString> arguments)
{
    return withTexts(qtTrId(key), arguments);
}

QString localizedCountText(const char *key, std::int64_t count, std::initializer_list<QString> arguments)
{
    return withTexts(localizedCount(key, count), arguments);
}

} // namespace ferrow
