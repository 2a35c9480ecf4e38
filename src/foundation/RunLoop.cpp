#include "foundation/RunLoop.h"

#include "foundation/Log.h"
#include "foundation/QtRunLoop.h"

#include <exception>

namespace barquell {

namespace {

RunLoop *mainLoop = nullptr;

} // namespace

RunLoop &RunLoop::main() {
    if (mainLoop) {
        return *mainLoop;
    }
    static QtRunLoop loop;
    return loop;
}

void RunLoop::setMain(RunLoop *loop) {
    mainLoop = loop;
}

void RunLoop::perform(const Task &task) {
    try {
        task();
    } catch (const std::exception &exception) {
        log(QStringLiteral("Uncaught exception in the run loop: %1")
                .arg(QString::fromUtf8(exception.what())));
    } catch (...) {
        log(QStringLiteral("Uncaught unknown exception in the run loop"));
    }
}

} // namespace barquell
