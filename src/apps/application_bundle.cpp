#include "apps/application_bundle.h"

namespace ferrow {
namespace {

const QLatin1String kBundleSuffix(".app");

bool isBundleFolder(QStringView component)
{
    return component.size() > kBundleSuffix.size() && component.endsWith(kBundleSuffix, Qt::CaseInsensitive);
}

} // namespace

ExecutableGroup executableGroup(QStringView executablePath)
{
    const qsizetype lastSlash = executablePath.lastIndexOf(u'/');
    // Only folders can be bundles: the executable itself may be named anything, "tool.app" included.
    for (qsizetype start = 0; start <= lastSlash;) {
        const qsizetype end = executablePath.indexOf(u'/', start);
        const QStringView component = executablePath.sliced(start, end - start);
        if (isBundleFolder(component)) {
            const QString bundle = executablePath.first(end).toString();
            return {bundle, oneLineName(component.chopped(kBundleSuffix.size())), bundle};
        }
        start = end + 1;
    }
    const QString executable = executablePath.sliced(lastSlash + 1).toString();
    return {executable, oneLineName(executable), QString()};
}

QString oneLineName(QStringView text)
{
    QString line = text.toString();
    for (QChar &c : line) {
        if (c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line || c.category() == QChar::Separator_Paragraph)
            c = u' ';
    }
    return line.trimmed();
}

} // namespace ferrow
