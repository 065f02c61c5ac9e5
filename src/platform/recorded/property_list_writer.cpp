#include "platform/recorded/property_list_writer.h"

#include <QXmlStreamWriter>

namespace ferrow {
namespace {

void writeValue(QXmlStreamWriter &xml, const PropertyValue &value)
{
    std::visit(
        [&xml](const auto &v) {
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<T, std::int64_t> || std::is_same_v<T, std::uint64_t>) {
                xml.writeTextElement(QStringLiteral("integer"), QString::number(v));
            } else if constexpr (std::is_same_v<T, double>) {
                xml.writeTextElement(QStringLiteral("real"), QString::number(v, 'g', 17));
            } else if constexpr (std::is_same_v<T, bool>) {
                xml.writeEmptyElement(v ? QStringLiteral("true") : QStringLiteral("false"));
            } else if constexpr (std::is_same_v<T, QString>) {
                xml.writeTextElement(QStringLiteral("string"), v);
            } else if constexpr (std::is_same_v<T, QByteArray>) {
                xml.writeTextElement(QStringLiteral("data"), QString::fromLatin1(v.toBase64()));
            } else if constexpr (std::is_same_v<T, PropertyList>) {
                xml.writeStartElement(QStringLiteral("array"));
                for (const PropertyValue &element : v)
                    if (!std::holds_alternative<UnsupportedProperty>(element.value))
                        writeValue(xml, element);
                xml.writeEndElement();
            } else if constexpr (std::is_same_v<T, PropertyDictionary>) {
                xml.writeStartElement(QStringLiteral("dict"));
                for (const auto &[key, element] : v) {
                    if (std::holds_alternative<UnsupportedProperty>(element.value))
                        continue;
                    xml.writeTextElement(QStringLiteral("key"), key);
                    writeValue(xml, element);
                }
                xml.writeEndElement();
            }
        },
        value.value);
}

} // namespace

QByteArray writePropertyList(const PropertyValue &value)
{
    QByteArray text;
    QXmlStreamWriter xml(&text);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(-1); // tabs, as the system's own writer
    xml.writeStartDocument();
    xml.writeDTD(QStringLiteral("<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">"));
    xml.writeStartElement(QStringLiteral("plist"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1.0"));
    if (!std::holds_alternative<UnsupportedProperty>(value.value))
        writeValue(xml, value);
    xml.writeEndElement();
    xml.writeEndDocument();
    return text;
}

} // namespace ferrow
