#pragma once

#include <QString>

#include <cstdint>
#include <initializer_list>

namespace ferrow {

// Looks a key up in the application's text table; a key without a text comes back as itself.
QString localizedText(const char *key);

// The key's text with its %1, %2 ... (or %L1 ...) placeholders filled in the current locale.
QString localizedFormat(const char *key, std::initializer_list<std::int64_t> arguments);

// A count in the key's plural form for it, its %Ln placeholder filled in the current locale.
QString localizedCount(const char *key, std::int64_t count);

// The key's text with its %1, %2 ... placeholders filled by texts.
QString localizedFormatText(const char *key, std::initializer_list<QString> arguments);

// A count in the key's plural form, its %1, %2 ... placeholders then filled by texts.
QString localizedCountText(const char *key, std::int64_t count, std::initializer_list<QString> arguments);

// The one absent-value text of every view.
inline constexpr char16_t kAbsentText[] = u"\u2014";

} // namespace ferrow
