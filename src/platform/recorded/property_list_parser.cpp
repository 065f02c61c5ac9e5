#include "platform/recorded/property_list_parser.h"

#include <QXmlStreamReader>

namespace ferrow {
namespace {

// Deeper than any real registry entry; guards the parser's stack against hostile input.
constexpr int kMaximumDepth = 128;

class Parser {
public:
    explicit Parser(const QByteArray &xml) : m_reader(xml) {}

    std::optional<PropertyValue> parseDocument()
    {
        if (!nextElement())
            return fail(QStringLiteral("no <plist> element"));
        if (m_reader.name() != u"plist")
            return fail(QStringLiteral("expected <plist>, found <%1>").arg(m_reader.name()));
        if (!nextElement())
            return fail(QStringLiteral("<plist> holds no value"));
        std::optional<PropertyValue> value = parseValue(0);
        if (!value)
            return std::nullopt;
        if (nextElement())
            return fail(QStringLiteral("unexpected <%1> after the value").arg(m_reader.name()));
        if (m_reader.hasError())
            return fail(m_reader.errorString());
        return value;
    }

    QString error() const { return m_error; }

private:
    std::optional<PropertyValue> fail(const QString &problem)
    {
        if (m_error.isEmpty())
            m_error = QStringLiteral("line %1, column %2: %3").arg(m_reader.lineNumber()).arg(m_reader.columnNumber()).arg(problem);
        return std::nullopt;
    }

    // Moves to the next start element; false at an end element, the end, or an error.
    bool nextElement()
    {
        while (!m_reader.atEnd()) {
            switch (m_reader.readNext()) {
            case QXmlStreamReader::StartElement:
                return true;
            case QXmlStreamReader::EndElement:
                return false;
            case QXmlStreamReader::Characters:
                if (!m_reader.isWhitespace()) {
                    fail(QStringLiteral("unexpected text"));
                    return false;
                }
                break;
            default:
                break;
            }
        }
        return false;
    }

    std::optional<QString> elementText()
    {
        const QString text = m_reader.readElementText(QXmlStreamReader::ErrorOnUnexpectedElement);
        if (m_reader.hasError()) {
            fail(m_reader.errorString());
            return std::nullopt;
        }
        return text;
    }

    // Parses the value whose start element the reader is on, up to and including its end.
    std::optional<PropertyValue> parseValue(int depth)
    {
        if (depth > kMaximumDepth)
            return fail(QStringLiteral("nested more than %1 levels deep").arg(kMaximumDepth));
        const QStringView name = m_reader.name();
        if (name == u"dict")
            return parseDictionary(depth);
        if (name == u"array")
            return parseArray(depth);
        if (name == u"true" || name == u"false") {
            const bool value = name == u"true";
            if (nextElement() || m_reader.hasError() || !m_error.isEmpty())
                return fail(QStringLiteral("<true/> and <false/> hold nothing"));
            return PropertyValue(value);
        }
        if (name == u"string") {
            std::optional<QString> text = elementText();
            return text ? std::optional<PropertyValue>(*text) : std::nullopt;
        }
        if (name == u"integer")
            return parseInteger();
        if (name == u"real")
            return parseReal();
        if (name == u"data") {
            std::optional<QString> text = elementText();
            if (!text)
                return std::nullopt;
            const auto decoded = QByteArray::fromBase64Encoding(text->simplified().remove(u' ').toLatin1(),
                                                                QByteArray::AbortOnBase64DecodingErrors);
            if (!decoded)
                return fail(QStringLiteral("<data> is not base64"));
            return PropertyValue(*decoded);
        }
        if (name == u"date")
            return elementText() ? std::optional<PropertyValue>(UnsupportedProperty{}) : std::nullopt;
        return fail(QStringLiteral("unknown element <%1>").arg(name));
    }

    std::optional<PropertyValue> parseInteger()
    {
        const std::optional<QString> text = elementText();
        if (!text)
            return std::nullopt;
        const QString trimmed = text->trimmed();
        bool ok = false;
        const qlonglong signedValue = trimmed.toLongLong(&ok, 0);
        if (ok)
            return PropertyValue(static_cast<std::int64_t>(signedValue));
        // ioreg prints negative registry numbers as their unsigned 64-bit pattern.
        const qulonglong unsignedValue = trimmed.toULongLong(&ok, 0);
        if (ok && !trimmed.startsWith(u'-'))
            return PropertyValue(static_cast<std::uint64_t>(unsignedValue));
        return fail(QStringLiteral("\"%1\" is not a 64-bit integer").arg(trimmed.left(40)));
    }

    std::optional<PropertyValue> parseReal()
    {
        const std::optional<QString> text = elementText();
        if (!text)
            return std::nullopt;
        bool ok = false;
        const double value = text->trimmed().toDouble(&ok);
        if (!ok)
            return fail(QStringLiteral("\"%1\" is not a real number").arg(text->trimmed().left(40)));
        return PropertyValue(value);
    }

    std::optional<PropertyValue> parseArray(int depth)
    {
        PropertyList list;
        while (nextElement()) {
            std::optional<PropertyValue> element = parseValue(depth + 1);
            if (!element)
                return std::nullopt;
            list.push_back(std::move(*element));
        }
        if (m_reader.hasError() || !m_error.isEmpty())
            return fail(m_reader.errorString());
        return PropertyValue(std::move(list));
    }

    std::optional<PropertyValue> parseDictionary(int depth)
    {
        PropertyDictionary dictionary;
        while (nextElement()) {
            if (m_reader.name() != u"key")
                return fail(QStringLiteral("expected <key> in <dict>, found <%1>").arg(m_reader.name()));
            std::optional<QString> key = elementText();
            if (!key)
                return std::nullopt;
            if (!nextElement())
                return fail(QStringLiteral("key \"%1\" has no value").arg(key->left(40)));
            std::optional<PropertyValue> value = parseValue(depth + 1);
            if (!value)
                return std::nullopt;
            dictionary.insert_or_assign(std::move(*key), std::move(*value));
        }
        if (m_reader.hasError() || !m_error.isEmpty())
            return fail(m_reader.errorString());
        return PropertyValue(std::move(dictionary));
    }

    QXmlStreamReader m_reader;
    QString m_error;
};

} // namespace

std::optional<PropertyValue> parsePropertyList(const QByteArray &xml, QString *error)
{
    Parser parser(xml);
    std::optional<PropertyValue> value = parser.parseDocument();
    if (!value && error)
        *error = parser.error().isEmpty() ? QStringLiteral("not a property list") : parser.error();
    return value;
}

} // namespace ferrow
