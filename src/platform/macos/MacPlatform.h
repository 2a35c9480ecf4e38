#pragma once

#include "platform/Platform.h"

#include <QStringList>

namespace barquell {

/// Makes the Mac the place where this process lives. To be called once, before the QApplication is made.
/// The keys are those of the settings whose outside changes count.
void installMac(const QString &domain, const QStringList &settingsKeys);

/// The same for a process that shows nothing and ends soon: without what an application object is needed for,
/// and without following the settings.
void installMacWithoutApplication(const QString &domain);

} // namespace barquell
