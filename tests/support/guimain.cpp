#include <QApplication>

#include <gmock/gmock.h>

// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp): the leak checker's name for it
extern "C" const char *__lsan_default_suppressions();

/// Fontconfig keeps for ever what it once found for a font.
extern "C" const char *__lsan_default_suppressions() {
    return "leak:libfontconfig\n";
}
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)

int main(int argc, char **argv) {
    if (!qgetenv("QT_QPA_PLATFORM").startsWith("offscreen")) { // real windows are for tests/gui
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
