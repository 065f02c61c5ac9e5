#include "platform/recorded/property_list_parser.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <limits>

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
        const std::optional<PropertyValue> value = integerValue(trimmed);
        if (!value)
            return fail(QStringLiteral("\"%1\" is not a 64-bit integer").arg(trimmed.left(40)));
        return value;
    }

    // An optional sign, then decimal digits (leading zeros included: this is not C's octal) or
    // 0x and hexadecimal digits, as the system's own property-list reader takes them.
    static std::optional<PropertyValue> integerValue(QStringView text)
    {
        const bool negative = text.startsWith(u'-');
        if (negative || text.startsWith(u'+'))
            text = text.sliced(1);
        int base = 10;
        if (text.startsWith(u"0x", Qt::CaseInsensitive)) {
            base = 16;
            text = text.sliced(2);
        }
        const auto isDigit = [base](QChar c) {
            return (c >= u'0' && c <= u'9') || (base == 16 && ((c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F')));
        };
        if (text.isEmpty() || !std::all_of(text.begin(), text.end(), isDigit))
            return std::nullopt;
        bool ok = false;
        const std::uint64_t magnitude = text.toULongLong(&ok, base);
        if (!ok)
            return std::nullopt;
        constexpr auto largestSigned = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
        if (negative) {
            if (magnitude > largestSigned + 1)
                return std::nullopt;
            // Negated in unsigned arithmetic, so that the most negative value needs no overflow.
            return PropertyValue(static_cast<std::int64_t>(0 - magnitude));
        }
        if (magnitude <= largestSigned)
            return PropertyValue(static_cast<std::int64_t>(magnitude));
        // ioreg prints negative registry numbers as their unsigned 64-bit pattern.
        return PropertyValue(magnitude);
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
