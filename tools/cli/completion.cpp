#include "cli/help.h"

namespace AnimText {

namespace {

QByteArray Joined(const QStringList& words)
{
    return words.join(QLatin1Char(' ')).toUtf8();
}

QStringList OptionWords(const Option& option)
{
    QStringList names{QStringLiteral("--") + QLatin1String(option.name)};
    if (option.letter)
        names.append(ShortestName(option));
    return names;
}

/** In single quotes for bash and zsh. */
QByteArray Quoted(QByteArray text)
{
    return '\'' + text.replace("'", "'\\''") + '\'';
}

QStringList CommandNames(const QVector<Command>& commands)
{
    QStringList names;
    for (const Command& command : commands)
        names.append(QLatin1String(command.name));
    return names;
}

} // namespace

QByteArray CompletionForBash(const QVector<Command>& commands)
{
    QByteArray values;
    QByteArray words;
    for (const Command& command : commands) {
        QStringList names;
        for (const Option& option : command.options) {
            names += OptionWords(option);
            if (option.kind == Kind::Flag)
                continue;
            QByteArray patterns;
            for (const QString& name : OptionWords(option))
                patterns += (patterns.isEmpty() ? "" : "|") + QByteArray(command.name) + ':' +
                            name.toUtf8();
            const QByteArray offer = option.kind == Kind::File
                                         ? "compgen -f"
                                         : "compgen -W " + Quoted(Joined(option.choices));
            values += "        " + patterns + ") mapfile -t COMPREPLY < <(" + offer +
                      " -- \"$current\"); return ;;\n";
        }
        words +=
            "        " + QByteArray(command.name) + ":-*) words=" + Quoted(Joined(names)) + " ;;\n";
        if (!command.words.isEmpty())
            words += "        " + QByteArray(command.name) +
                     ":*) words=" + Quoted(Joined(command.words)) + " ;;\n";
    }
    return "# bash completion for animtext: source <(animtext completion bash)\n"
           "_animtext() {\n"
           "    local current=${COMP_WORDS[COMP_CWORD]} words=\n"
           "    if ((COMP_CWORD == 1)); then\n"
           "        mapfile -t COMPREPLY < <(compgen -W " +
           Quoted(Joined(CommandNames(commands) +
                         QStringList{QStringLiteral("--help"), QStringLiteral("--version")})) +
           " -- \"$current\")\n"
           "        return\n"
           "    fi\n"
           "    case ${COMP_WORDS[1]}:${COMP_WORDS[COMP_CWORD - 1]} in\n" +
           values +
           "    esac\n"
           "    case ${COMP_WORDS[1]}:$current in\n" +
           words +
           "        *) mapfile -t COMPREPLY < <(compgen -f -- \"$current\"); return ;;\n"
           "    esac\n"
           "    mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$current\")\n"
           "}\n"
           "complete -o filenames -F _animtext animtext\n";
}

QByteArray CompletionForZsh(const QVector<Command>& commands)
{
    // Colons and brackets end a description.
    const auto plain = [](QByteArray text) {
        return text.replace("[", "\\[").replace("]", "\\]").replace(":", "\\:");
    };
    QByteArray summaries;
    QByteArray cases;
    for (const Command& command : commands) {
        summaries += "        " + Quoted(plain(command.name) + ':' + command.summary) + '\n';
        cases += "        " + QByteArray(command.name) + ") _arguments";
        for (const Option& option : command.options) {
            const QByteArray action = option.kind == Kind::File ? "_files"
                                      : option.choices.isEmpty()
                                          ? " "
                                          : '(' + Joined(option.choices) + ')';
            for (const QString& name : OptionWords(option)) {
                const bool isFlag = option.kind == Kind::Flag;
                const char* const join = isFlag                                 ? ""
                                         : name.startsWith(QLatin1String("--")) ? "="
                                                                                : "+";
                cases += " \\\n            " +
                         Quoted(name.toUtf8() + join + '[' + plain(option.help) + ']' +
                                (isFlag ? QByteArray()
                                        : (option.alone ? "::" : ":") + plain(option.value) + ':' +
                                              action));
            }
        }
        const QByteArray rest =
            command.words.isEmpty() ? QByteArray("_files") : '(' + Joined(command.words) + ')';
        cases +=
            " \\\n            " + Quoted("*:" + plain(command.arguments) + ':' + rest) + " ;;\n";
    }
    return "#compdef animtext\n"
           "# zsh completion for animtext: animtext completion zsh >_animtext, in your $fpath\n"
           "_animtext() {\n"
           "    local -a commands=(\n" +
           summaries +
           "    )\n"
           "    if ((CURRENT == 2)); then\n"
           "        _describe command commands\n"
           "        return\n"
           "    fi\n"
           "    local command=$words[2]\n"
           "    shift words\n"
           "    ((CURRENT--))\n"
           "    case $command in\n" +
           cases +
           "    esac\n"
           "}\n"
           "compdef _animtext animtext\n";
}

QByteArray CompletionForFish(const QVector<Command>& commands)
{
    // In fish, only \' and \\ are special inside quotes.
    const auto quoted = [](QByteArray text) {
        return '\'' + text.replace("\\", "\\\\").replace("'", "\\'") + '\'';
    };
    QByteArray text = "# fish completion for animtext: animtext completion fish | source\n";
    for (const Command& command : commands) {
        const QByteArray name = command.name;
        text += "complete -c animtext -f -n __fish_use_subcommand -a " + name + " -d " +
                quoted(command.summary) + '\n';
        const QByteArray here =
            "complete -c animtext -n '__fish_seen_subcommand_from " + name + "' ";
        for (const Option& option : command.options) {
            text += here + "-l " + option.name;
            if (option.letter)
                text += QByteArray(" -s ") + option.letter;
            if (option.kind != Kind::Flag)
                text += option.kind == Kind::File ? " -r -F" : " -x";
            if (!option.choices.isEmpty())
                text += " -a " + quoted(Joined(option.choices));
            text += " -d " + quoted(option.help) + '\n';
        }
        if (!command.words.isEmpty())
            text += here + "-f -a " + quoted(Joined(command.words)) + '\n';
    }
    return text;
}

} // namespace AnimText
