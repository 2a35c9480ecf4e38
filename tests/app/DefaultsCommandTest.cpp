// `barquell defaults`, run as a user does.

#include "foundation/Values.h"
#include "platform/SettingsFolder.h"
#include "platform/linux/FileSettingsStore.h"
#include "support/SettingsProcess.h"

#include <gmock/gmock.h>

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>

namespace barquell {
namespace {

const QString kFile = QStringLiteral("com.vexolith.barquell/settings.json");

struct Result {
    int exitCode = -1;
    std::string output;
    QByteArray errors;
};

class DefaultsCommandTest : public testing::Test {
protected:
    Result run(const QStringList &arguments) const {
        return runProgram(QStringList{QStringLiteral("defaults")} + arguments, configuration.path(QString()));
    }

    Result runProgram(const QStringList &arguments, const QString &configurationHome) const {
        QProcess command;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), configurationHome);
        command.setProcessEnvironment(environment);
        command.start(QStringLiteral(BARQUELL_PROGRAM), arguments);
        const bool ended = command.waitForFinished() && command.exitStatus() == QProcess::NormalExit;
        return {ended ? command.exitCode() : -1, command.readAllStandardOutput().toStdString(),
                command.readAllStandardError()};
    }

    /// The words of a command line without quoting.
    Result run(const char *line) const { return run(QString::fromUtf8(line).split(QLatin1Char(' '))); }

    void expectWritten(const char *words, const QVariant &value) {
        const Result result = run((QByteArray("write key ") + words).constData());
        EXPECT_EQ(result.exitCode, 0) << words;
        EXPECT_EQ(result.output, "") << words;
        EXPECT_EQ(result.errors, "") << words;
        EXPECT_TRUE(sameValue(stored(), QVariantMap{{QStringLiteral("key"), value}})) << words;
    }

    /// Nothing printed but one line of complaint, and nothing changed.
    void expectRefused(const char *line, int exitCode) {
        const QByteArray before = configuration.bytes(kFile);
        const Result result = run(line);
        EXPECT_EQ(result.exitCode, exitCode) << line;
        EXPECT_EQ(result.output, "") << line;
        EXPECT_EQ(result.errors.count('\n'), 1) << line << ": " << result.errors.toStdString();
        EXPECT_EQ(configuration.bytes(kFile), before) << line;
    }

    QVariantMap stored() const { return FileSettingsStore(path).read(); }

    test::SettingsFolder configuration;
    const QString path = configuration.path(kFile);
};

TEST_F(DefaultsCommandTest, WritesEachType) {
    expectWritten("text", QStringLiteral("text"));
    expectWritten("5", QStringLiteral("5"));
    expectWritten("-string -x", QStringLiteral("-x"));
    expectWritten("-bool YES", true);
    expectWritten("-bool false", false);
    expectWritten("-boolean 1", true);
    expectWritten("-int -5", -5LL);
    expectWritten("-integer 9223372036854775807", 9223372036854775807LL);
    expectWritten("-float 1", 1.0);
    expectWritten("-float -2.5e3", -2500.0);
    expectWritten("-data 00fF7e", QByteArray("\x00\xFF\x7E", 3));
    const QDateTime date(QDate(2024, 2, 29), QTime(12, 0, 0, 250), Qt::UTC);
    expectWritten("-date 2024-02-29T12:00:00.250Z", date);
    expectWritten("-date 2024-02-29T13:00:00.250+01:00", date);
}

TEST_F(DefaultsCommandTest, WritesListsOfWhateverFollows) {
    expectWritten("-array a", QVariantList{QStringLiteral("a")});
    expectWritten("-array -int 5 --help",
                  QVariantList{QStringLiteral("-int"), QStringLiteral("5"), QStringLiteral("--help")});
    expectWritten("-array", QVariantList{});
    expectWritten("--array a --array", QVariantList{QStringLiteral("a"), QStringLiteral("--array")});
}

TEST_F(DefaultsCommandTest, RefusesWrongUsage) {
    for (const char *line : {"write key -bool maybe",
                             "write key -bool",
                             "write key -int 5x",
                             "write key -int 9223372036854775808",
                             "write key -float one",
                             "write key -date yesterday",
                             "write key -data 0",
                             "write key -data xy",
                             "write key",
                             "write",
                             "write key a b",
                             "write key -int 1 -bool 1",
                             "write key -int 1 2",
                             "write -array key",
                             "write -int -array x",
                             "write -- -array x",
                             "write key -dict a",
                             "write key -date 9999-12-31T23:00:00-05:00",
                             "read a b",
                             "read -int 5",
                             "delete a b",
                             "delete --json",
                             "frob",
                             "--frob"}) {
        expectRefused(line, 2);
    }
    expectRefused("write  -int 1", 2); // an empty key
    EXPECT_EQ(run(QStringList()).exitCode, 2);
}

TEST_F(DefaultsCommandTest, ReadsOneValueAsText) {
    const std::initializer_list<std::pair<const char *, const char *>> cases{
        {"-bool true", "1\n"},
        {"-bool no", "0\n"},
        {"-int -7", "-7\n"},
        {"-float 0.1", "0.1\n"},
        {"-string a\"b", "a\"b\n"},
        {"-data 0aFF", "<0aff>\n"},
        {"-date 2024-02-29T12:00:00Z", "2024-02-29 12:00:00 +0000\n"},
        {"-date 2024-02-29T12:00:00.250Z", "2024-02-29 12:00:00.250 +0000\n"},
        {"-array one t-wo", "(\n    one,\n    \"t-wo\"\n)\n"},
        {"-array", "(\n)\n"}};
    for (const auto &[write, read] : cases) {
        run((QByteArray("write key ") + write).constData());
        const Result result = run("read key");
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.output, read);
    }
}

TEST_F(DefaultsCommandTest, TakesADateAsItPrintsIt) {
    const QString printed = QStringLiteral("2024-02-29 12:00:00.250 +0000");
    EXPECT_EQ(
        run({QStringLiteral("write"), QStringLiteral("key"), QStringLiteral("-date"), printed}).exitCode, 0);
    EXPECT_EQ(run("read key").output, printed.toStdString() + "\n");
}

TEST_F(DefaultsCommandTest, ReadsTheWholeDomain) {
    EXPECT_EQ(run("read").output, "{\n}\n");
    run("write b -array x");
    run({QStringLiteral("write"), QStringLiteral("a key"), QStringLiteral("-bool"), QStringLiteral("1")});
    EXPECT_EQ(run("read").output, "{\n    \"a key\" = 1;\n    b = (\n        x\n    );\n}\n");
}

TEST_F(DefaultsCommandTest, PrintsJson) {
    run("write flag -bool true");
    run("write data -data 00ff");
    run("write date -date 2024-02-29T12:00:00Z");
    run("write list -array x");
    EXPECT_EQ(run("read flag --json").output, "true\n");
    EXPECT_EQ(run("read --json data").output, "\"AP8=\"\n");
    const QJsonObject domain =
        QJsonDocument::fromJson(QByteArray::fromStdString(run("read --json").output)).object();
    EXPECT_EQ(domain.keys().size(), 4);
    EXPECT_EQ(domain.value(QStringLiteral("date")).toString(), QStringLiteral("2024-02-29T12:00:00.000Z"));
    EXPECT_TRUE(domain.value(QStringLiteral("list")).isArray());
}

TEST_F(DefaultsCommandTest, DeletesAKeyOrEverything) {
    run("write a 1");
    run("write b 2");
    EXPECT_EQ(run("delete a").exitCode, 0);
    EXPECT_EQ(stored().keys(), QStringList{QStringLiteral("b")});
    EXPECT_EQ(run("delete").exitCode, 0);
    EXPECT_TRUE(stored().isEmpty());
    EXPECT_EQ(run("delete").exitCode, 0);
}

TEST_F(DefaultsCommandTest, SaysThatAKeyIsMissing) {
    run("write a 1");
    expectRefused("read key", 1);
    expectRefused("delete key", 1);
}

TEST_F(DefaultsCommandTest, SaysThatNothingCouldBeSaved) {
    run("write a 1"); // makes the folder
    test::SettingsProcess holder(QStringLiteral("hold"), path);
    ASSERT_TRUE(holder.isReady());
    expectRefused("write a 2", 1);
    expectRefused("delete", 1);
    holder.process().closeWriteChannel();
    EXPECT_EQ(holder.exitCode(), 0);
    EXPECT_EQ(run("write a 2").exitCode, 0);
    EXPECT_TRUE(QDir().mkdir(path + QStringLiteral(".new"))); // in the way of the new file
    expectRefused("write a 3", 1);
}

TEST_F(DefaultsCommandTest, ReadingMakesNothing) {
    const Result result = run("read");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "{\n}\n");
    EXPECT_EQ(result.errors, "");
    EXPECT_TRUE(QDir(configuration.path(QString())).isEmpty());
}

TEST_F(DefaultsCommandTest, WhereNothingCanBeStoredOnlyTheWriteComplainsAndOnce) {
    const QString nowhere = QStringLiteral("/proc/nope");
    const QString defaults = QStringLiteral("defaults");
    const Result read = runProgram({defaults, QStringLiteral("read")}, nowhere);
    EXPECT_EQ(read.exitCode, 0);
    EXPECT_EQ(read.errors, "");
    const Result write =
        runProgram({defaults, QStringLiteral("write"), QStringLiteral("A"), QStringLiteral("1")}, nowhere);
    EXPECT_EQ(write.exitCode, 1);
    EXPECT_EQ(write.errors.count('\n'), 1) << write.errors.toStdString();
}

TEST_F(DefaultsCommandTest, WordsAndFilesThatItQuotesStayInOneLine) {
    const QString home = configuration.path(QString());
    const QString file = QStringLiteral("/no\nwhere\x1b[31m");
    for (const QStringList &words :
         {QStringList{QStringLiteral("a\nb")}, QStringList{QStringLiteral("replay"), file}}) {
        const Result result = runProgram(words, home);
        EXPECT_NE(result.exitCode, 0);
        EXPECT_EQ(result.errors.count('\n'), 1) << result.errors.toStdString();
        EXPECT_FALSE(result.errors.contains('\x1b'));
    }
    run("write key 1");
    QFile settings(path);
    ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
    settings.write(R"({"$a\nb\u001b[31m": 1})");
    settings.close();
    const Result result = run("read");
    EXPECT_EQ(result.errors.count('\n'), 1) << result.errors.toStdString();
    EXPECT_FALSE(result.errors.contains('\x1b'));
}

TEST_F(DefaultsCommandTest, HelpsWithExamples) {
    const Result result = run("--help");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output.rfind("Usage: barquell defaults [options]", 0), 0U) << result.output;
    for (const char *part :
         {"barquell defaults write Enabled --bool true", "--bool", "--array", "--json", "--date"}) {
        EXPECT_THAT(result.output, testing::HasSubstr(part));
    }
    EXPECT_EQ(run("write --help").exitCode, 0);
}

TEST_F(DefaultsCommandTest, IsSeenAtOnceByARunningProgram) {
    test::SettingsProcess program(QStringLiteral("observe"), path, {QStringLiteral("key")});
    ASSERT_TRUE(program.isReady());
    EXPECT_EQ(run("write other 1").exitCode, 0);
    EXPECT_EQ(run("write key news").exitCode, 0);
    EXPECT_EQ(program.readLine(), "news");
    EXPECT_EQ(program.exitCode(), 0);
}

} // namespace
} // namespace barquell
