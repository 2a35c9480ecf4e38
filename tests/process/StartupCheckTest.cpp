// One running copy.

#include "process/AppHelpersFixture.h"

#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace barquell::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Delegate final : public AppLifecycleDelegate {
public:
    void applicationDidFinishLaunching() override {}
    bool applicationShouldHandleReopen(bool hasVisibleWindows) override {
        reopened.push_back(hasVisibleWindows);
        return true;
    }
    void applicationWillTerminate() override {}

    std::vector<bool> reopened;
};

/// Enters what is posted into the journal of the application's life.
class JournaledNotifications final : public DistributedNotifications {
public:
    JournaledNotifications(DistributedNotifications &real, std::vector<std::string> &journal)
        : _real(real), _journal(journal) {}

    void post(const QString &name) override {
        _journal.push_back("post " + name.toStdString());
        _real.post(name);
    }
    std::unique_ptr<Observation> observe(const QString &name, Handler handler) override {
        return _real.observe(name, std::move(handler));
    }

private:
    DistributedNotifications &_real;
    std::vector<std::string> &_journal;
};

class StartupCheckTest : public AppHelpersFixture {
protected:
    StartupCheckTest() {
        begin();
        life.setDelegate(&_delegate);
        Platform journaled = platform();
        journaled.distributedNotifications = &_notifications;
        installPlatform(journaled);
    }
    ~StartupCheckTest() override {
        here.platform.install();
        life.setDelegate(nullptr);
    }
    Q_DISABLE_COPY_MOVE(StartupCheckTest)

    void setCopies(int count) { workspace.copies.insert(QStringLiteral("com.vexolith.barquell"), count); }

    /// Runs the check; the alert, if there is one, is answered with the button of that number.
    Startup check(int button = 0) {
        QTimer::singleShot(0, [this, button] {
            if (auto *alert = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                message = alert->text();
                informativeText = alert->informativeText();
                for (const QAbstractButton *each : alert->buttons()) {
                    buttons.append(each->text());
                }
                alert->buttons().at(button)->click();
            }
        });
        const Startup startup = AppHelpers::startupCheck();
        QCoreApplication::processEvents();
        here.loop.runPending();
        return startup;
    }

    void post(const char *request) {
        here.platform.notifications.post(QStringLiteral("com.vexolith.barquell.") + QLatin1String(request));
        here.loop.runPending();
    }

    /// A copy that started answers the requests of later ones.
    void expectAnswers() {
        forget();
        post("show");
        EXPECT_THAT(_delegate.reopened, ElementsAre(false));
        EXPECT_THAT(life.journal, IsEmpty());
        post("quit");
        EXPECT_THAT(life.journal, ElementsAre("terminate"));
    }

    QString message;
    QString informativeText;
    QStringList buttons;

private:
    Delegate _delegate;
    JournaledNotifications _notifications{here.platform.notifications, life.journal};
};

TEST_F(StartupCheckTest, TheOnlyCopyStartsWithoutAnAlert) {
    setCopies(1);
    EXPECT_EQ(check(), Startup::ByUser);
    EXPECT_EQ(message, QString());
    EXPECT_THAT(life.journal, IsEmpty());
    expectAnswers();
}

TEST_F(StartupCheckTest, ALoginItemStartsTheOnlyCopy) {
    qputenv("FromLoginItem", "");
    setCopies(1);
    EXPECT_TRUE(AppHelpers::isLaunchedFromLoginItem());
    EXPECT_EQ(check(), Startup::ByLoginItem);
    expectAnswers();
}

TEST_F(StartupCheckTest, WithoutTheLoginItemsMarkTheUserStartedIt) {
    EXPECT_FALSE(AppHelpers::isLaunchedFromLoginItem());
}

TEST_F(StartupCheckTest, ASecondCopyFromTheLoginItemQuitsWithoutAnAlert) {
    qputenv("FromLoginItem", "no"); // its presence counts
    setCopies(2);
    EXPECT_EQ(check(), Startup::Ending);
    EXPECT_EQ(message, QString());
    EXPECT_THAT(life.journal, ElementsAre("terminate"));
}

TEST_F(StartupCheckTest, ASecondCopyAsksWithItsFourButtonsInOrder) {
    setCopies(2);
    check();
    EXPECT_EQ(message, QStringLiteral("Another copy of Barquell is already running"));
    EXPECT_EQ(informativeText, QStringLiteral("This copy is going to quit"));
    EXPECT_THAT(buttons, ElementsAre(QStringLiteral("OK"), QStringLiteral("Show another copy"),
                                     QStringLiteral("Quit another copy instead"),
                                     QStringLiteral("Keep all copies running")));
}

TEST_F(StartupCheckTest, OkQuitsThisCopy) {
    setCopies(2);
    EXPECT_EQ(check(0), Startup::Ending);
    EXPECT_THAT(life.journal, ElementsAre("terminate"));
}

TEST_F(StartupCheckTest, ShowAnotherCopyAsksItToShowItselfAndQuits) {
    setCopies(2);
    EXPECT_EQ(check(1), Startup::Ending);
    EXPECT_THAT(life.journal, ElementsAre("post com.vexolith.barquell.show", "terminate"));
}

TEST_F(StartupCheckTest, QuitAnotherCopyAsksItToQuitAndGoesOnAndAnswersItself) {
    setCopies(3);
    EXPECT_EQ(check(2), Startup::ByUser);
    // It did not hear its own request.
    EXPECT_THAT(life.journal, ElementsAre("post com.vexolith.barquell.quit"));
    expectAnswers();
}

TEST_F(StartupCheckTest, KeepAllCopiesGoesOn) {
    setCopies(2);
    EXPECT_EQ(check(3), Startup::ByUser);
    EXPECT_THAT(life.journal, IsEmpty());
    expectAnswers();
}

TEST_F(StartupCheckTest, EscapeAnswersAsOk) {
    setCopies(2);
    QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
    EXPECT_EQ(AppHelpers::startupCheck(), Startup::Ending);
    EXPECT_THAT(life.journal, ElementsAre("terminate"));
}

TEST_F(StartupCheckTest, MultipleInstancesThatAreAllowedMeetWithoutAnAlert) {
    qputenv("AllowMultipleInstances", "YES");
    setCopies(2);
    EXPECT_EQ(check(), Startup::ByUser);
    EXPECT_EQ(message, QString());
    expectAnswers();
}

TEST_F(StartupCheckTest, MultipleInstancesFromTheLoginItemAreAllowedToo) {
    qputenv("AllowMultipleInstances", "1");
    qputenv("FromLoginItem", "1");
    setCopies(2);
    EXPECT_EQ(check(), Startup::ByLoginItem);
}

TEST_F(StartupCheckTest, MultipleInstancesThatAreNotAllowedMeetWithTheAlert) {
    for (const char *value : {"", "0", "no", "off"}) {
        qputenv("AllowMultipleInstances", value);
        setCopies(2);
        message.clear();
        EXPECT_EQ(check(), Startup::Ending) << value;
        EXPECT_FALSE(message.isEmpty()) << value;
    }
}

TEST_F(StartupCheckTest, ARequestToShowWithoutADelegateDoesNothing) {
    setCopies(1);
    check();
    life.setDelegate(nullptr);
    post("show");
    EXPECT_THAT(life.journal, IsEmpty());
}

} // namespace
} // namespace barquell::test
