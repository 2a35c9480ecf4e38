#include "app/commands/DefaultsCommand.h"

#include "app/commands/Arguments.h"
#include "app/commands/SavedSettings.h"
#include "app/commands/ValueText.h"
#include "foundation/UserDefaults.h"
#include "foundation/Values.h"
#include "platform/Platform.h"

#include <QDateTime>
#include <QRegularExpression>

#include <array>
#include <cstdio>

namespace barquell {

namespace {

using Reader = std::optional<QVariant> (*)(const QString &text);

const QString kCommand = QStringLiteral("defaults");

std::optional<QVariant> readBool(const QString &text) {
    const QString word = text.toLower();
    const bool yes =
        QStringList{QStringLiteral("true"), QStringLiteral("yes"), QStringLiteral("1")}.contains(word);
    const bool no =
        QStringList{QStringLiteral("false"), QStringLiteral("no"), QStringLiteral("0")}.contains(word);
    return yes || no ? std::optional<QVariant>(yes) : std::nullopt;
}

std::optional<QVariant> readInteger(const QString &text) {
    bool whole = false;
    const qlonglong number = text.toLongLong(&whole);
    return whole ? std::optional<QVariant>(number) : std::nullopt;
}

std::optional<QVariant> readReal(const QString &text) {
    bool whole = false;
    const double number = text.toDouble(&whole);
    return whole ? std::optional<QVariant>(number) : std::nullopt;
}

std::optional<QVariant> readText(const QString &text) {
    return text;
}

std::optional<QVariant> readDate(const QString &text) {
    QString iso = text; // as `read` prints it, too
    iso.replace(QLatin1String(" +"), QLatin1String("+"));
    const QDateTime date = QDateTime::fromString(iso, Qt::ISODateWithMs);
    return date.isValid() ? std::optional<QVariant>(date.toUTC()) : std::nullopt;
}

std::optional<QVariant> readData(const QString &text) {
    static const QRegularExpression bytes(QStringLiteral("\\A<?((?:[0-9A-Fa-f]{2})*)>?\\z"));
    const QRegularExpressionMatch match = bytes.match(text);
    return match.hasMatch() ? std::optional<QVariant>(QByteArray::fromHex(match.captured(1).toLatin1()))
                            : std::nullopt;
}

/// A type that `write` knows: the option, what it is called in the help, and how its text is read.
struct Type {
    const char *option;
    const char *alias; // nullptr where there is none
    const char *value;
    Reader read;
};

constexpr std::array kTypes{
    Type{"bool", "boolean", "true|false", readBool}, Type{"int", "integer", "number", readInteger},
    Type{"float", nullptr, "number", readReal},      Type{"string", nullptr, "text", readText},
    Type{"date", nullptr, "ISO 8601", readDate},     Type{"data", nullptr, "hexadecimal", readData},
};

const QString kArray = QStringLiteral("array");
const QString kJson = QStringLiteral("json");

void describe(QCommandLineParser &parser) {
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(
        QStringLiteral("Reads and changes the settings; a running Barquell follows at once.\n"
                       "\n"
                       "  barquell defaults read\n"
                       "  barquell defaults read Enabled --json\n"
                       "  barquell defaults write Enabled --bool true\n"
                       "  barquell defaults write names --array one two three\n"
                       "  barquell defaults delete Enabled\n"
                       "  barquell defaults delete\n"
                       "\n"
                       "A single dash before an option does as well as two."));
    parser.addPositionalArgument(QStringLiteral("verb"), QStringLiteral("read, write or delete."),
                                 QStringLiteral("read|write|delete"));
    parser.addPositionalArgument(QStringLiteral("key"),
                                 QStringLiteral("The setting; all of them where it is left away."),
                                 QStringLiteral("[KEY]"));
    parser.addPositionalArgument(QStringLiteral("value"),
                                 QStringLiteral("What to write; text unless a type is given."),
                                 QStringLiteral("[VALUE]"));
}

void addOptions(QCommandLineParser &parser, const QString &verb) {
    if (verb != QLatin1String("write") && verb != QLatin1String("delete")) {
        parser.addOption({kJson, QStringLiteral("Print JSON (read).")});
    }
    if (verb == QLatin1String("read") || verb == QLatin1String("delete")) {
        return;
    }
    for (const Type &type : kTypes) {
        QStringList names{QString::fromLatin1(type.option)};
        if (type.alias) {
            names.append(QString::fromLatin1(type.alias));
        }
        parser.addOption(
            {names, QStringLiteral("Write a value of this type."), QString::fromLatin1(type.value)});
    }
    parser.addOption({kArray, QStringLiteral("Write a list of the texts that follow, of none if need be.")});
}

int missing(const QString &key) {
    return failure(QStringLiteral("There is no setting \"%1\"").arg(key).simplified());
}

int runRead(const UserDefaults &defaults, const QStringList &operands, bool json) {
    if (operands.size() > 1) {
        return wrongUsage(kCommand, QStringLiteral("'read' takes one key"));
    }
    const QVariantMap &domain = defaults.persistentDomain();
    if (!operands.isEmpty() && !domain.contains(operands.first())) {
        return missing(operands.first());
    }
    const QVariant value = operands.isEmpty() ? QVariant(domain) : domain.value(operands.first());
    const QByteArray text = (json ? valueAsJson(value) : valueAsText(value).toUtf8()) + '\n';
    const auto length = static_cast<std::size_t>(text.size());
    const bool printed =
        std::fwrite(text.constData(), 1, length, stdout) == length && std::fflush(stdout) == 0;
    return printed ? kExitSuccess : failure(QStringLiteral("The settings could not be printed"));
}

int store(UserDefaults &defaults, const QString &key, const QVariant &value) {
    if (key.isEmpty()) {
        return wrongUsage(kCommand, QStringLiteral("A key has at least one letter"));
    }
    if (!storableValue(value) || !key.isValidUtf16()) {
        return wrongUsage(kCommand, QStringLiteral("That cannot be stored"));
    }
    defaults.setObject(value, key);
    return saveSettings(defaults);
}

int runWrite(UserDefaults &defaults, const QStringList &operands, const QCommandLineParser &parser,
             const std::optional<QStringList> &elements) {
    if (elements || parser.isSet(kArray)) {
        return elements && parser.isSet(kArray) && operands.size() == 1
                   ? store(defaults, operands.first(), QVariantList(elements->begin(), elements->end()))
                   : wrongUsage(kCommand, QStringLiteral("'--array' comes after the key"));
    }
    const Type *chosen = nullptr;
    QStringList texts = operands.mid(1);
    for (const Type &type : kTypes) {
        const QStringList values = parser.values(QString::fromLatin1(type.option));
        chosen = values.isEmpty() ? chosen : &type;
        texts += values;
    }
    if (operands.isEmpty() || texts.size() != 1) {
        return wrongUsage(kCommand, QStringLiteral("'write' takes a key and one value"));
    }
    const std::optional<QVariant> value = chosen ? chosen->read(texts.first()) : readText(texts.first());
    if (!value) {
        return wrongUsage(kCommand, QStringLiteral("'%1' is no value for '--%2'")
                                        .arg(texts.first(), QString::fromLatin1(chosen->option)));
    }
    return store(defaults, operands.first(), *value);
}

int runDelete(UserDefaults &defaults, const QStringList &operands) {
    if (operands.size() > 1) {
        return wrongUsage(kCommand, QStringLiteral("'delete' takes one key"));
    }
    if (operands.isEmpty()) {
        defaults.removePersistentDomain();
        return saveSettings(defaults);
    }
    if (!defaults.persistentDomain().contains(operands.first())) {
        return missing(operands.first());
    }
    defaults.removeObjectForKey(operands.first());
    return saveSettings(defaults);
}

bool isArrayOption(const QString &word) {
    return word == QLatin1String("--array") || word == QLatin1String("-array");
}

} // namespace

int runDefaults(const QStringList &arguments) {
    // What follows "--array" after the key is the list, whatever it looks like.
    QStringList words = arguments;
    std::optional<QStringList> elements;
    if (words.value(1) == QLatin1String("write") && isArrayOption(words.value(3))) {
        elements = words.mid(4);
        words = words.first(4);
    }
    QCommandLineParser parser;
    describe(parser);
    addOptions(parser, words.value(1));
    if (const std::optional<int> exitCode = parseArguments(parser, kCommand, words)) {
        return *exitCode;
    }
    if (!platform().settingsStore) {
        return failure(QStringLiteral("There are no settings here"));
    }
    UserDefaults defaults(platform().settingsStore, UserDefaults::Following::No);
    const QStringList positional = parser.positionalArguments();
    const QString verb = positional.value(0);
    if (verb == QLatin1String("read")) {
        return runRead(defaults, positional.mid(1), parser.isSet(kJson));
    }
    if (verb == QLatin1String("write")) {
        return runWrite(defaults, positional.mid(1), parser, elements);
    }
    if (verb == QLatin1String("delete")) {
        return runDelete(defaults, positional.mid(1));
    }
    return wrongUsage(kCommand, QStringLiteral("It is 'read', 'write' or 'delete'"));
}

} // namespace barquell
