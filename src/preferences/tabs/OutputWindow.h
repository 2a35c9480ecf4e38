#pragma once

#include <QPlainTextEdit>
#include <QProcess>

namespace barquell {

/// A window with what another program prints, as it comes. Deletes itself when it is closed. Main thread
/// only.
class OutputWindow final : public QPlainTextEdit {
    Q_OBJECT

public:
    /// The command is a program and its arguments.
    static void showOutputOf(const QStringList &command, const QString &title);

    explicit OutputWindow(const QStringList &command);
    ~OutputWindow() override;
    Q_DISABLE_COPY_MOVE(OutputWindow)

private:
    void appendOutput();
    void complain();

    QProcess _process;
};

} // namespace barquell
