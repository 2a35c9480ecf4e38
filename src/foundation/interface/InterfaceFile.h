#pragma once

#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace barquell {

/// What an interface file made: the objects that nobody holds but who loaded the file. One that gets a parent
/// later goes with the parent or with its last holder, whichever goes first.
using TopLevelObjects = std::vector<std::shared_ptr<QObject>>;

/// Loads the Qt Designer file ":/interface/NAME.ui", wires it to its owner and wakes everything in it; see
/// docs/interface-files.md for what a file may say. Nothing where the file is missing, cut short, or names a
/// class, an outlet or an action that does not exist; nothing is wired and nobody is woken then. The reason
/// goes to who wants it; nothing is logged. Needs a QApplication. Main thread only.
std::optional<TopLevelObjects> loadInterfaceFile(const QString &name, QObject *owner,
                                                 QString *complaint = nullptr);

/// The same for what such a file holds.
std::optional<TopLevelObjects> loadInterface(const QByteArray &content, QObject *owner,
                                             QString *complaint = nullptr);

} // namespace barquell
