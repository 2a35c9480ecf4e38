#include "app/commands/ReplayCommand.h"

#include "app/commands/Arguments.h"
#include "app/replay/JsonReport.h"
#include "app/replay/Replay.h"
#include "app/replay/ReplayArguments.h"
#include "app/replay/TableReport.h"
#include "evdev/DeviceKind.h"
#include "foundation/Log.h"
#include "recording/EvemuWriter.h"

#include <QFile>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>

namespace barquell {

using namespace replay;

namespace {

struct Options {
    ReplaySettings settings;
    std::optional<QString> emitFile;
};

std::filesystem::path pathOf(const QString &file) {
    return QFile::encodeName(file).toStdString();
}

/// Emitting over what is being replayed would lose it.
bool isOneOf(const QString &file, const QStringList &recordings) {
    return std::any_of(recordings.begin(), recordings.end(), [&](const QString &each) {
        std::error_code none;
        return std::filesystem::equivalent(pathOf(file), pathOf(each), none);
    });
}

/// All devices of all files; complaints are said here.
struct Recordings {
    std::vector<recording::RecordedDevice> devices;
    bool whole = true;
};

Recordings readAll(const QStringList &files) {
    Recordings all;
    for (const QString &file : files) {
        recording::Recording one = recording::readRecording(pathOf(file));
        if (!one.complaint.empty()) {
            logToStandardError(file + QStringLiteral(": ") + QString::fromStdString(one.complaint));
            all.whole = false;
        }
        std::move(one.devices.begin(), one.devices.end(), std::back_inserter(all.devices));
    }
    return all;
}

/// The file that takes what a clone of the one bar would send.
class Emission {
public:
    /// Empty where all is well.
    QString open(const QString &file, const std::vector<recording::RecordedDevice> &devices) {
        const auto isBar = [](const auto &device) { return evdev::isTouchBar(device.description); };
        if (std::count_if(devices.begin(), devices.end(), isBar) != 1) {
            return QStringLiteral("--emit takes recordings of exactly one Touch Bar");
        }
        _out.open(pathOf(file), std::ios::binary | std::ios::trunc);
        recording::writeEvemuHeader(_out, std::find_if(devices.begin(), devices.end(), isBar)->description);
        return complaint(file);
    }

    void write(const std::vector<evdev::InputEvent> &events) {
        for (const evdev::InputEvent &event : events) {
            recording::writeEvemuEvent(_out, event);
        }
    }

    QString close(const QString &file) {
        _out.close();
        return complaint(file);
    }

private:
    QString complaint(const QString &file) const {
        return _out ? QString() : QStringLiteral("%1: cannot be written").arg(file);
    }

    std::ofstream _out;
};

template <typename Report>
int replayWith(Recordings recordings, const Options &options) {
    Report report(std::cout);
    Emission emission;
    if (options.emitFile) {
        const QString complaint = emission.open(*options.emitFile, recordings.devices);
        if (!complaint.isEmpty()) {
            return failure(complaint);
        }
    }
    Replay replay(std::move(recordings.devices), report);
    if (options.emitFile) {
        replay.setEmissionHandler([&](const auto &events) { emission.write(events); });
    }
    replay.run(options.settings);
    report.finish();
    if (!std::cout.flush()) {
        return failure(QStringLiteral("the standard output cannot be written"));
    }
    if (options.emitFile) {
        const QString complaint = emission.close(*options.emitFile);
        if (!complaint.isEmpty()) {
            return failure(complaint);
        }
    }
    return recordings.whole ? kExitSuccess : kExitFailure;
}

} // namespace

int runReplay(const QStringList &arguments) {
    const QString command = QStringLiteral("replay");
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("\nLeads recorded events of a Touch Bar and its keyboard through the filter and says "
                       "what becomes of each.\n"
                       "Files: text of evemu-record (one device each) or YAML of libinput record (one device "
                       "or many); several\n"
                       "files are merged by time. Nothing is stored, and no device is touched.\n\n"
                       "  barquell replay session.yml\n"
                       "  barquell replay --set PauseKeyFn=false --set PauseKeyCommand=true session.yml\n"
                       "  barquell replay --json --emit clone.evemu bar.evemu keyboard.evemu"));
    parser.addOption({QStringLiteral("set"),
                      QStringLiteral("Use VALUE for a setting; also trusted=false, and pauseFlags=N "
                                     "(1 bypassed application, 2 screen shield)."),
                      QStringLiteral("KEY=VALUE")});
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print one JSON object a line.")});
    parser.addOption({QStringLiteral("emit"),
                      QStringLiteral("Write what a clone of the bar would send, as evemu text."),
                      QStringLiteral("FILE")});
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("Recordings."),
                                 QStringLiteral("FILE…"));
    if (const auto done = parseArguments(parser, command, arguments)) {
        return *done;
    }
    Options options;
    for (const QString &assignment : parser.values(QStringLiteral("set"))) {
        const QString complaint = assign(options.settings, assignment);
        if (!complaint.isEmpty()) {
            return wrongUsage(command, complaint);
        }
    }
    if (parser.positionalArguments().isEmpty()) {
        return wrongUsage(command, QStringLiteral("no recording given"));
    }
    if (parser.isSet(QStringLiteral("emit"))) {
        options.emitFile = parser.value(QStringLiteral("emit"));
        if (isOneOf(*options.emitFile, parser.positionalArguments())) {
            return wrongUsage(command, QStringLiteral("--emit would write over a recording"));
        }
    }
    Recordings recordings = readAll(parser.positionalArguments());
    if (recordings.devices.empty()) {
        return recordings.whole ? failure(QStringLiteral("no device in the recordings")) : kExitFailure;
    }
    return parser.isSet(QStringLiteral("json")) ? replayWith<JsonReport>(std::move(recordings), options)
                                                : replayWith<TableReport>(std::move(recordings), options);
}

} // namespace barquell
