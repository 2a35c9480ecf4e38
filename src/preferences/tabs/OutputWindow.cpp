#include "preferences/tabs/OutputWindow.h"

#include "foundation/Log.h"
#include "process/AppHelpers.h"

#include <QFontDatabase>

namespace barquell {

namespace {

constexpr QSize kSize(720, 420);
constexpr int kMostLines = 10000;

} // namespace

void OutputWindow::showOutputOf(const QStringList &command, const QString &title) {
    auto *window = new OutputWindow(command); // NOLINT(cppcoreguidelines-owning-memory): deletes itself
    window->setWindowTitle(title);
    AppHelpers::showForegroundWindow(window);
}

OutputWindow::OutputWindow(const QStringList &command) {
    setAttribute(Qt::WA_DeleteOnClose);
    setReadOnly(true);
    setTabChangesFocus(true);
    setMaximumBlockCount(kMostLines);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    resize(kSize);
    _process.setProcessChannelMode(QProcess::MergedChannels);
    connect(&_process, &QProcess::readyRead, this, &OutputWindow::appendOutput);
    connect(&_process, &QProcess::errorOccurred, this, &OutputWindow::complain);
    _process.start(command.first(), command.mid(1));
}

OutputWindow::~OutputWindow() {
    _process.disconnect(this);
    _process.kill();
}

void OutputWindow::appendOutput() {
    moveCursor(QTextCursor::End);
    insertPlainText(QString::fromUtf8(_process.readAll()));
}

void OutputWindow::complain() {
    log(QStringLiteral("Cannot run %1: %2").arg(_process.program(), _process.errorString()));
    appendPlainText(_process.errorString());
}

} // namespace barquell
