#include "app/machine_source.h"

#include "platform/recorded/recorded_machine.h"
#include "platform/simulated/simulated_machine.h"

#if defined(Q_OS_MACOS)
#include "platform/macos/mac_machine.h"
#endif

namespace ferrow {

std::optional<MachineSource> MachineSource::parse(const QString &text)
{
    if (text == u"auto")
        return MachineSource{Kind::automatic, {}};
    if (text == u"simulated")
        return MachineSource{Kind::simulatedNotebook, {}};
    if (text == u"simulated-desktop")
        return MachineSource{Kind::simulatedDesktop, {}};
    if (text.startsWith(u"recorded:") && text.size() > 9)
        return MachineSource{Kind::recorded, text.mid(9)};
    return std::nullopt;
}

std::optional<OpenedMachine> openMachine(const MachineSource &source, QString *error)
{
    using Kind = SimulatedPowerModel::Kind;
    const auto simulated = [](Kind kind, const char *description, const char *subtitleKey) {
        SimulatedMachine::Options options;
        options.kind = kind;
        return OpenedMachine{std::make_unique<SimulatedMachine>(options), QString::fromLatin1(description), true, true, subtitleKey};
    };
    switch (source.kind) {
    case MachineSource::Kind::automatic:
#if defined(Q_OS_MACOS)
        return OpenedMachine{std::make_unique<MacMachine>(), QStringLiteral("this Mac"), false, true};
#endif
    case MachineSource::Kind::simulatedNotebook:
        return simulated(Kind::notebook, "simulated notebook", "app.menu_subtitle_simulated");
    case MachineSource::Kind::simulatedDesktop:
        return simulated(Kind::desktop, "simulated desktop", "app.menu_subtitle_simulated_desktop");
    case MachineSource::Kind::recorded:
        break;
    }
    std::optional<Recording> recording = loadRecording(source.recordingPath, error);
    if (!recording)
        return std::nullopt;
    const QString description = recording->description.isEmpty() ? source.recordingPath : recording->description;
    return OpenedMachine{std::make_unique<RecordedMachine>(std::move(*recording)), QStringLiteral("recording of ") + description, false,
                         false};
}

} // namespace ferrow
