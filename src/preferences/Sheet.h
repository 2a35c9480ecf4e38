#pragma once

#include <functional>

class QObject;
class QString;
class QWidget;

namespace barquell {

/// Asks a question with the localized "OK" and "Cancel" as a sheet of the window, and returns at once. "OK"
/// alone calls, and only while the context lives.
void confirmInSheet(QWidget *window, const QString &question, QObject *context,
                    std::function<void()> confirmed);

} // namespace barquell
