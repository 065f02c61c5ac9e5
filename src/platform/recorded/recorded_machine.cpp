#include "platform/recorded/recorded_machine.h"

#include "sources/mac_names.h"
#include "sources/power_sensor_reader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace ferrow {
namespace {

constexpr qint64 kMaximumFileSize = 16 * 1024 * 1024;

std::optional<QByteArray> readFile(const QString &path, QString *error)
{
    // Only a regular file: a pipe would block the opening, a device such as /dev/zero never ends.
    if (QFileInfo(path).exists() && !QFileInfo(path).isFile()) {
        *error = QStringLiteral("%1: not a regular file, not a recording").arg(path);
        return std::nullopt;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("%1: cannot be read: %2").arg(path, file.errorString());
        return std::nullopt;
    }
    QByteArray contents = file.read(kMaximumFileSize + 1);
    if (contents.size() > kMaximumFileSize) {
        *error = QStringLiteral("%1: larger than %2 MiB, not a recording").arg(path).arg(kMaximumFileSize / 1024 / 1024);
        return std::nullopt;
    }
    return contents;
}

class RecordedEnergySource final : public EnergyReportSource {
public:
    explicit RecordedEnergySource(RecordedMachine &machine, bool hasFrames) : m_machine(machine), m_hasFrames(hasFrames) {}
    bool subscribe() override { return m_hasFrames; }
    std::optional<std::vector<EnergyChannelSample>> sample() override { return m_machine.nextEnergyFrame(); }

private:
    RecordedMachine &m_machine;
    bool m_hasFrames;
};

class RecordedProcessSource final : public ProcessSource {
public:
    explicit RecordedProcessSource(std::vector<ProcessFrame> frames) : m_frames(std::move(frames)) {}
    std::optional<ProcessFrame> sample() override
    {
        m_frame = m_frame ? std::min(*m_frame + 1, m_frames.size() - 1) : 0;
        return m_frames[*m_frame];
    }

private:
    std::vector<ProcessFrame> m_frames; // never empty
    std::optional<std::size_t> m_frame;
};

} // namespace

std::optional<Recording> loadRecording(const QString &folder, QString *error)
{
    QString ignored;
    QString &message = error ? *error : ignored;
    const QDir directory(folder);
    if (!directory.exists()) {
        message = QStringLiteral("%1: no such recording folder").arg(folder);
        return std::nullopt;
    }
    const QString machinePath = directory.filePath(RecordingFormat::machineFile);
    const std::optional<QByteArray> machineText = readFile(machinePath, &message);
    if (!machineText)
        return std::nullopt;
    const QString batteryPath = directory.filePath(RecordingFormat::batteryFile);
    std::optional<QByteArray> batteryText;
    if (QFile::exists(batteryPath)) {
        batteryText = readFile(batteryPath, &message);
        if (!batteryText)
            return std::nullopt;
    }
    return parseRecording(*machineText, machinePath, batteryText, batteryPath, &message);
}

std::optional<PowerSnapshot> readRecordedSnapshot(const QString &folder, QString *error)
{
    std::optional<Recording> recording = loadRecording(folder, error);
    if (!recording)
        return std::nullopt;
    PowerSensorReader reader{std::make_unique<RecordedMachine>(std::move(*recording))};
    reader.read();
    return reader.read();
}

RecordedMachine::RecordedMachine(Recording recording)
    : m_recording(std::move(recording))
{
    for (const auto &[key, entry] : m_recording.smcKeys)
        m_smc.setEntry(key, entry);
    for (const auto &[key, stored] : m_recording.preferences)
        m_preferences.setData(key, stored);
}

std::unique_ptr<SMCUserClient> RecordedMachine::createSMCUserClient()
{
    return std::make_unique<InMemorySMCClient>(m_smc);
}

std::unique_ptr<EnergyReportSource> RecordedMachine::createEnergyReportSource()
{
    return std::make_unique<RecordedEnergySource>(*this, !m_recording.energyFrames.empty());
}

std::unique_ptr<ProcessSource> RecordedMachine::createProcessSource() const
{
    if (m_recording.processFrames.empty())
        return nullptr;
    return std::make_unique<RecordedProcessSource>(m_recording.processFrames);
}

std::optional<PropertyDictionary> RecordedMachine::registryProperties(const QString &className)
{
    return className == MacNames::batteryService ? m_recording.battery : std::nullopt;
}

std::optional<CommandResult> RecordedMachine::run(const QString &program, const QStringList &)
{
    return program == MacNames::systemProfiler ? m_recording.systemProfiler : std::nullopt;
}

std::optional<std::vector<EnergyChannelSample>> RecordedMachine::nextEnergyFrame()
{
    if (m_recording.energyFrames.empty())
        return std::nullopt;
    m_frame = m_frame ? std::min(*m_frame + 1, m_recording.energyFrames.size() - 1) : 0;
    return m_recording.energyFrames[*m_frame].channels;
}

double RecordedMachine::uptimeSeconds() const
{
    return m_frame ? m_recording.energyFrames[*m_frame].uptimeS : 0.0;
}

} // namespace ferrow
