// What enumerating processes costs: one sample of a desktop's 400 processes as a copied /proc
// tree, the first (every process new) and the next (every process known, the steady state), and
// a sample of this machine's own /proc. The application samples every 5 s with its windows closed.

#include "allocation_count.h"
#include "platform/linux/proc_process_source.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <atomic>
#include <memory>

using namespace ferrow;

namespace {

void write(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
}

QByteArray statLine(int pid, const QByteArray &name, const QByteArray &flags, int ticks)
{
    return QByteArray::number(pid) + " (" + name + ") S 1 " + QByteArray::number(pid) + ' ' + QByteArray::number(pid)
        + " 0 -1 " + flags + " 3967 0 12 0 " + QByteArray::number(ticks) + ' ' + QByteArray::number(ticks / 3)
        + " 0 0 20 0 4 0 " + QByteArray::number(2000 + pid) + " 1290760192 12380 18446744073709551615 94216164556800 "
          "94216164560581 140727011733264 0 0 0 0 4096 17003 0 0 0 17 1 0 0 0 0 0 94216164572912 94216164574264 "
          "94216176115712 140727011739203 140727011739235 140727011739235 140727011741663 0\n";
}

// A desktop's processes: kernel threads, system services, the session, and applications with
// several processes each, in a tree whose files hold what the kernel's would.
struct DesktopTree {
    QTemporaryDir folder;
    std::string root;
    QStringList dataFolders;

    DesktopTree()
    {
        const QString proc = folder.filePath(QStringLiteral("proc"));
        root = QFile::encodeName(proc).toStdString();
        dataFolders = {folder.filePath(QStringLiteral("share"))};
        write(proc + QStringLiteral("/uptime"), "35021.47 61233.90\n");
        QByteArray stat = "cpu  1180237 2212 301764 5840051 12409 0 8361 0 0 0\n";
        for (int core = 0; core < 8; ++core)
            stat += "cpu" + QByteArray::number(core) + " 147529 276 37720 730006 1551 0 1045 0 0 0\n";
        write(proc + QStringLiteral("/stat"), stat + "intr 91334120 9 0 0 0 0 0 0 0 1 0 0 0 0 0 0 0 0\nctxt 301337842\n");
        const QByteArray user = "0::/user.slice/user-1000.slice/user@1000.service/";
        struct Kind {
            int count;
            QByteArray name;
            QByteArray flags;
            QByteArray cgroup;
        };
        const Kind kinds[] = {
            {130, "kworker/3:2-events", "69238880", "0::/\n"},
            {70, "systemd-journald", "4194560", "0::/system.slice/systemd-journald.service\n"},
            {60, "gnome-shell", "4194560", user + "session.slice/org.gnome.Shell@wayland.service\n"},
            {80, "Isolated Web Co", "4194560", user + "app.slice/app-gnome-firefox-4127.scope\n"},
            {20, "bash", "4194560", user + "app.slice/app-org.gnome.Terminal.slice/vte-spawn-8e1f.scope\n"},
            {40, "code", "4194560", user + "app.slice/app-gnome-code-5531.scope\n"},
        };
        int pid = 2;
        for (const Kind &kind : kinds) {
            for (int i = 0; i < kind.count; ++i, ++pid) {
                const QString process = proc + QLatin1Char('/') + QString::number(pid) + QLatin1Char('/');
                write(process + QStringLiteral("stat"), statLine(pid, kind.name, kind.flags, pid * 37));
                write(process + QStringLiteral("cgroup"), kind.cgroup);
                if (kind.flags != "69238880")
                    QFile::link(QStringLiteral("/usr/bin/") + QString::fromUtf8(kind.name), process + QStringLiteral("exe"));
            }
        }
        QByteArray firefox = "[Desktop Entry]\nVersion=1.0\nName=Firefox\nGenericName=Web Browser\nExec=firefox %u\nIcon=firefox\n";
        for (int language = 0; language < 60; ++language)
            firefox += "Comment[l" + QByteArray::number(language) + "]=Browse the World Wide Web\n";
        write(dataFolders.front() + QStringLiteral("/applications/firefox.desktop"), firefox);
        write(dataFolders.front() + QStringLiteral("/applications/org.gnome.Terminal.desktop"),
              "[Desktop Entry]\nName=Terminal\nIcon=org.gnome.Terminal\n");
    }
};

const DesktopTree &desktop()
{
    static const DesktopTree tree;
    return tree;
}

void report(benchmark::State &state, std::size_t processes, std::size_t allocations)
{
    state.counters["processes"] = static_cast<double>(processes);
#if defined(__GLIBC__)
    state.counters["allocs/sample"] = benchmark::Counter(static_cast<double>(allocations), benchmark::Counter::kAvgIterations);
#else
    benchmark::DoNotOptimize(allocations);
#endif
}

void timeSamples(benchmark::State &state, ProcProcessSource &source)
{
    const std::optional<ProcessFrame> first = source.sample();
    if (!first) {
        state.SkipWithError("nothing to sample");
        return;
    }
    std::size_t allocations = 0;
    for (auto _ : state) {
        const std::size_t before = allocationCount.load();
        benchmark::DoNotOptimize(source.sample());
        allocations += allocationCount.load() - before;
    }
    report(state, first->processes.size(), allocations);
}

void firstSample(benchmark::State &state)
{
    const DesktopTree &tree = desktop();
    std::size_t processes = 0;
    std::size_t allocations = 0;
    for (auto _ : state) {
        const std::size_t before = allocationCount.load();
        ProcProcessSource source(tree.root, tree.dataFolders);
        const std::optional<ProcessFrame> frame = source.sample();
        allocations += allocationCount.load() - before;
        processes = frame ? frame->processes.size() : 0;
    }
    report(state, processes, allocations);
}
BENCHMARK(firstSample)->Unit(benchmark::kMicrosecond);

void knownSample(benchmark::State &state)
{
    const DesktopTree &tree = desktop();
    ProcProcessSource source(tree.root, tree.dataFolders);
    timeSamples(state, source);
}
BENCHMARK(knownSample)->Unit(benchmark::kMicrosecond);

void thisMachine(benchmark::State &state)
{
    ProcProcessSource source;
    timeSamples(state, source);
}
BENCHMARK(thisMachine)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
