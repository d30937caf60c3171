#include "plot/PlotHelp.h"

#include "plot/PlotForms.h"

#include <array>

namespace {

constexpr int Columns = 110;

/// `words`, wrapped; lines after the first are indented.
QString wrapped(const QStringList& words, const QString& first, const QString& indent)
{
    QString text;
    QString line = first;
    bool isEmpty = true;
    for (const QString& word : words) {
        if (!isEmpty && line.size() + 1 + word.size() > Columns) {
            text += line + QLatin1Char('\n');
            line = indent;
            isEmpty = true;
        }
        line += (isEmpty ? QString() : QStringLiteral(" ")) + word;
        isEmpty = false;
    }
    return text + line + QLatin1Char('\n');
}

/// What stands for the value of an option: its choices, or a file with the endings that the command takes.
QString valueText(const CommandForm& command, const OptionForm& option)
{
    if (!option.choices.isEmpty()) {
        return option.choices.join(QLatin1Char('|'));
    }
    for (const FileEndings& rule : fileEndings()) {
        if (rule.command == command.command && QLatin1String(rule.option) == QLatin1String(option.name)) {
            QStringList files;
            for (const QString& ending : rule.endings) {
                files << (ending.isEmpty() ? QStringLiteral("FOLDER") : QStringLiteral("FILE.") + ending);
            }
            return files.join(QLatin1Char('|'));
        }
    }
    return QLatin1String(option.value);
}

QString optionText(const CommandForm& command, const QString& name)
{
    const OptionForm& option = optionForm(name);
    QString text = QStringLiteral("--") + name;
    if (option.value != nullptr) {
        text += QLatin1Char(' ') + valueText(command, option);
    }
    const bool manyItems = command.command == PlotOptions::Command::Accumulate;
    const bool repeats = option.repeats && (name != QLatin1String("data") || manyItems);
    return repeats ? text + QStringLiteral(" ...") : text;
}

/// The options of a command as they are typed, those that it can do without in brackets.
QStringList optionTexts(const CommandForm& command)
{
    QStringList texts;
    for (const QString& name : command.required) {
        texts << optionText(command, name);
    }
    for (const QString& name : command.allowed) {
        texts << QLatin1Char('[') + optionText(command, name) + QLatin1Char(']');
    }
    return texts;
}

struct ExitCodeHelp
{
    const char* code;
    const char* help;
};

constexpr std::array<ExitCodeHelp, 4> ExitCodes = {{{"0", "all is done"},
                                                    {"1", "an error, or something was left out"},
                                                    {"2", "the command line is not understood"},
                                                    {"130", "stopped by Ctrl+C; nothing half made is left"}}};

/// Troff takes some signs for its own.
QString inTroff(QString text)
{
    text.replace(QLatin1Char('\\'), QStringLiteral("\\e")).replace(QLatin1Char('-'), QStringLiteral("\\-"));
    return text.startsWith(QLatin1Char('.')) ? QStringLiteral("\\&") + text : text;
}

QString troffList(const QString& term, const QString& text)
{
    return QStringLiteral(".TP\n.B %1\n%2\n").arg(inTroff(term), inTroff(text));
}

QString troffCommands()
{
    QString text;
    for (const CommandForm& command : commandForms()) {
        text += QStringLiteral(".SS %1\n").arg(inTroff(QLatin1String(command.name)));
        text += inTroff(QLatin1String(command.help)) +
                QStringLiteral("\n.PP\n.B varnplot %1\n").arg(inTroff(QLatin1String(command.name)));
        text += inTroff(optionTexts(command).join(QLatin1Char('\n'))) + QLatin1Char('\n');
    }
    return text;
}

/// The words that can follow an option in the shell, or how it finds them.
QString completionOf(const OptionForm& option)
{
    const QString name = QLatin1String(option.name);
    if (!option.choices.isEmpty()) {
        return QStringLiteral("    --%1) COMPREPLY=($(compgen -W \"%2\" -- \"$word\")); return ;;\n")
            .arg(name, option.choices.join(QLatin1Char(' ')));
    }
    const bool isFile =
        QStringList{QStringLiteral("FILE"), QStringLiteral("PATH"), QStringLiteral("DIR")}.contains(
            QLatin1String(option.value));
    return isFile ? QStringLiteral("    --%1) COMPREPLY=($(compgen -f -- \"$word\")); return ;;\n").arg(name)
                  : QStringLiteral("    --%1) return ;;\n").arg(name);
}

} // namespace

QString plotUsage()
{
    QString text = QStringLiteral("usage:\n");
    for (const CommandForm& command : commandForms()) {
        text +=
            wrapped(optionTexts(command), QStringLiteral("  varnplot %1 ").arg(QLatin1String(command.name)),
                    QString(11, QLatin1Char(' ')));
        text += wrapped(QString::fromLatin1(command.help).split(QLatin1Char(' ')),
                        QString(6, QLatin1Char(' ')), QString(6, QLatin1Char(' ')));
    }
    text += QStringLiteral("  varnplot --help | --version\n\noptions:\n");
    for (const OptionForm& option : optionForms()) {
        const QString first = QStringLiteral("  --%1").arg(QLatin1String(option.name)).leftJustified(21);
        text += wrapped(QString::fromLatin1(option.help).split(QLatin1Char(' ')), first,
                        QString(21, QLatin1Char(' ')));
    }
    text += QStringLiteral("\nexit code:\n");
    for (const auto& [code, help] : ExitCodes) {
        text += QStringLiteral("  %1  %2\n").arg(QLatin1String(code), -4).arg(QLatin1String(help));
    }
    return text;
}

QString plotManPage()
{
    QString text = QStringLiteral(".TH VARNPLOT 1 \"\" \"%1\" \"User commands\"\n").arg(plotVersion());
    text += QStringLiteral(
        ".SH NAME\nvarnplot \\- draw dialect maps without a window\n"
        ".SH SYNOPSIS\n.B varnplot\n.I command\n.RI [ options ]\n"
        ".SH DESCRIPTION\n"
        "Draws the maps of a dialect survey, one or hundreds at a time, counts word forms over "
        "many items,\nand makes surveys of tables. See\n.BR varn (1)\nfor the program with "
        "windows.\n.SH COMMANDS\n");
    text += troffCommands() + QStringLiteral(".SH OPTIONS\n");
    for (const OptionForm& option : optionForms()) {
        const QString value =
            option.value == nullptr ? QString() : QLatin1Char(' ') + QLatin1String(option.value);
        text +=
            troffList(QStringLiteral("--") + QLatin1String(option.name) + value, QLatin1String(option.help));
    }
    text += troffList(QStringLiteral("--help"), QStringLiteral("how the program is called"));
    text += troffList(QStringLiteral("--version"), QStringLiteral("its version"));
    text += QStringLiteral(".SH EXIT STATUS\n");
    for (const auto& [code, help] : ExitCodes) {
        text += troffList(QLatin1String(code), QLatin1String(help));
    }
    return text + QStringLiteral(".SH SEE ALSO\n.BR varn (1)\n");
}

QString plotCompletion()
{
    QStringList commands;
    QString values;
    QString options;
    for (const OptionForm& option : optionForms()) {
        values += option.value == nullptr ? QString() : completionOf(option);
    }
    for (const CommandForm& command : commandForms()) {
        commands << QLatin1String(command.name);
        const QStringList names = command.required + command.allowed;
        options += QStringLiteral("    %1) options=\"--%2\" ;;\n")
                       .arg(commands.last(), names.join(QStringLiteral(" --")));
    }
    return QStringLiteral("# bash completion of varnplot\n"
                          "_varnplot() {\n"
                          "    local word=\"${COMP_WORDS[COMP_CWORD]}\" options=\"\"\n"
                          "    COMPREPLY=()\n"
                          "    if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
                          "        COMPREPLY=($(compgen -W \"%1 --help --version\" -- \"$word\"))\n"
                          "        return\n"
                          "    fi\n"
                          "    case \"${COMP_WORDS[COMP_CWORD-1]}\" in\n%2    esac\n"
                          "    case \"${COMP_WORDS[1]}\" in\n%3    esac\n"
                          "    COMPREPLY=($(compgen -W \"$options\" -- \"$word\"))\n"
                          "}\n"
                          "complete -o filenames -F _varnplot varnplot\n")
        .arg(commands.join(QLatin1Char(' ')), values, options);
}

QString plotVersion()
{
    return QStringLiteral("varnplot " VARN_VERSION);
}
