#include "platform/linux/proc_files.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <string>

#include <fcntl.h>
#include <unistd.h>

namespace ferrow {
namespace {

// The next field separated by spaces, moving text past it; empty at the end.
std::string_view nextField(std::string_view &text)
{
    const std::size_t start = text.find_first_not_of(' ');
    if (start == std::string_view::npos) {
        text = {};
        return {};
    }
    text.remove_prefix(start);
    const std::size_t end = std::min(text.find_first_of(" \n"), text.size());
    const std::string_view field = text.substr(0, end);
    text.remove_prefix(end);
    if (!text.empty() && text.front() == '\n')
        text = {}; // the line ends here
    return field;
}

std::optional<std::uint64_t> wholeNumber(std::string_view field)
{
    std::uint64_t value = 0;
    const char *end = field.data() + field.size();
    const auto [last, error] = std::from_chars(field.data(), end, value);
    if (field.empty() || error != std::errc() || last != end)
        return std::nullopt;
    return value;
}

constexpr std::uint64_t kKernelThreadFlag = 0x00200000; // PF_KTHREAD

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

// systemd writes a unit name's special bytes as \xNN.
std::string unescapedUnitName(std::string_view escaped)
{
    std::string name;
    name.reserve(escaped.size());
    for (std::size_t i = 0; i < escaped.size(); ++i) {
        if (escaped[i] == '\\' && i + 3 < escaped.size() && escaped[i + 1] == 'x' && hexDigit(escaped[i + 2]) >= 0
            && hexDigit(escaped[i + 3]) >= 0) {
            name += static_cast<char>(hexDigit(escaped[i + 2]) * 16 + hexDigit(escaped[i + 3]));
            i += 3;
        } else {
            name += escaped[i];
        }
    }
    return name;
}

// The application id of one unit made for an application: app[-<launcher>]-<id>[@<random>].service,
// app[-<launcher>]-<id>-<random>.scope or app-[...-]<id>.slice.
std::string_view unitApplicationId(std::string_view unit)
{
    constexpr std::string_view prefix = "app-";
    if (!unit.starts_with(prefix))
        return {};
    unit.remove_prefix(prefix.size());
    if (unit.ends_with(".service")) {
        unit.remove_suffix(8);
        unit = unit.substr(0, unit.find('@'));
    } else if (unit.ends_with(".scope")) {
        unit.remove_suffix(6);
        const std::size_t random = unit.rfind('-');
        if (random == std::string_view::npos)
            return {};
        unit = unit.substr(0, random);
    } else if (unit.ends_with(".slice")) {
        unit.remove_suffix(6);
    } else {
        return {};
    }
    const std::size_t launcher = unit.rfind('-');
    return launcher == std::string_view::npos ? unit : unit.substr(launcher + 1);
}

// An id that names a desktop entry's file and nothing outside its folder.
bool isFileId(std::string_view id)
{
    if (id.empty())
        return false;
    for (const char c : id) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte <= ' ' || byte == 0x7f || c == '/' || c == '\\')
            return false;
    }
    return true;
}

} // namespace

std::string_view trimmedText(std::string_view text)
{
    constexpr std::string_view space = " \t\r\n";
    const std::size_t first = text.find_first_not_of(space);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(space) - first + 1);
}

int openFileAt(int folder, const char *path)
{
    return ::openat(folder, path, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
}

std::optional<std::size_t> readFile(int file, char *buffer, std::size_t capacity)
{
    std::size_t size = 0;
    while (size < capacity) {
        const std::size_t wanted = capacity - size;
        const ssize_t count = ::pread(file, buffer + size, wanted, static_cast<off_t>(size));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return std::nullopt;
        size += static_cast<std::size_t>(count);
        // A file on disk or of the kernel's gives all it has at once; asking again only to hear
        // that there is no more would add a third to the cost of reading it.
        if (static_cast<std::size_t>(count) < wanted)
            break;
    }
    return size;
}

std::optional<std::size_t> readFileAt(int folder, const char *path, char *buffer, std::size_t capacity)
{
    const int file = openFileAt(folder, path);
    if (file < 0)
        return std::nullopt;
    const std::optional<std::size_t> size = readFile(file, buffer, capacity);
    ::close(file);
    return size;
}

std::optional<ProcStat> parseProcStat(std::string_view text)
{
    const std::size_t open = text.find('(');
    const std::size_t close = text.rfind(')');
    if (open == std::string_view::npos || close == std::string_view::npos || close < open)
        return std::nullopt;
    ProcStat stat;
    stat.name = text.substr(open + 1, close - open - 1);
    std::string_view rest = text.substr(close + 1);
    std::uint64_t utime = 0;
    // Fields count from 1 at the pid; the name is 2.
    for (int field = 3; field <= 22; ++field) {
        const std::string_view value = nextField(rest);
        if (value.empty())
            return std::nullopt;
        if (field != 9 && field != 14 && field != 15 && field != 22)
            continue;
        const std::optional<std::uint64_t> number = wholeNumber(value);
        if (!number)
            return std::nullopt;
        if (field == 9)
            stat.kernelThread = (*number & kKernelThreadFlag) != 0;
        else if (field == 14)
            utime = *number;
        else if (field == 15)
            stat.cpuTicks = utime + *number;
        else
            stat.startTicks = *number;
    }
    return stat;
}

std::optional<double> parseUptime(std::string_view text)
{
    const std::string_view field = nextField(text);
    double seconds = 0;
    const char *end = field.data() + field.size();
    const auto [last, error] = std::from_chars(field.data(), end, seconds);
    if (field.empty() || error != std::errc() || last != end || !std::isfinite(seconds) || seconds < 0)
        return std::nullopt;
    return seconds;
}

std::optional<CpuTicks> parseCpuTicks(std::string_view text)
{
    if (!text.starts_with("cpu "))
        return std::nullopt;
    text.remove_prefix(4);
    // user nice system idle iowait irq softirq steal; older kernels stop early. Guest time is
    // already in user and nice.
    std::uint64_t ticks[8] = {};
    for (int i = 0; i < 8; ++i) {
        const std::string_view field = nextField(text);
        if (field.empty() && i >= 4)
            break;
        const std::optional<std::uint64_t> number = wholeNumber(field);
        if (!number)
            return std::nullopt;
        ticks[i] = *number;
    }
    CpuTicks cpu;
    cpu.busy = ticks[0] + ticks[1] + ticks[2] + ticks[5] + ticks[6] + ticks[7];
    cpu.total = cpu.busy + ticks[3] + ticks[4];
    return cpu;
}

QString applicationIdFromCgroup(std::string_view text)
{
    // The unified hierarchy's line; a hybrid system lists the legacy controllers' lines too.
    std::string_view path;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        const std::string_view line = text.substr(start, end - start);
        if (line.starts_with("0::")) {
            path = line.substr(3);
            break;
        }
        start = end + 1;
    }
    // Innermost first: a terminal's shell sits in its own scope inside the terminal's slice.
    while (!path.empty()) {
        const std::size_t slash = path.rfind('/');
        const std::string_view unit = slash == std::string_view::npos ? path : path.substr(slash + 1);
        path = path.substr(0, slash == std::string_view::npos ? 0 : slash);
        const std::string_view id = unitApplicationId(unit);
        if (id.empty())
            continue;
        const std::string unescaped = unescapedUnitName(id);
        return isFileId(unescaped) ? QString::fromUtf8(unescaped) : QString();
    }
    return {};
}

QString printableName(std::string_view bytes)
{
    QString name = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    for (QChar &c : name) {
        const QChar::Category category = c.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line || category == QChar::Separator_Paragraph)
            c = QLatin1Char(' ');
    }
    return name.trimmed();
}

} // namespace ferrow
