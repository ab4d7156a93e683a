// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include "Literals.h"
#include "PackageInformation.h"

#include <QCommandLineParser>

namespace abissora {

namespace {

struct CommandOption
{
    Command command;
    QString name;
    QString operand; ///< what its value is called; empty for one without
};

const QList<CommandOption>& commandOptions()
{
    static const QList<CommandOption> all{
        {Command::ListStates, u"list-states"_s, {}},
        {Command::Check, u"check"_s, {}},
        {Command::Restore, u"restore"_s, u"STATO"_s},
    };
    return all;
}

/// The options of the command line, and what an argument list says with them.
class Parser
{
public:
    explicit Parser(const QStringList& arguments)
    {
        m_parser.addOptions({m_help, m_version, m_dataDir, m_snapshot});
        for (const CommandOption& option : commandOptions())
            m_parser.addOption(QCommandLineOption(option.name, {}, option.operand));
        m_isUnderstood = m_parser.parse(QStringList{u"abissora"_s} + arguments);
    }

    [[nodiscard]] tl::expected<CommandLine, QString> result() const
    {
        if (const QString error = firstError(); !error.isEmpty())
            return tl::unexpected(error);
        CommandLine line;
        line.help = m_parser.isSet(m_help);
        line.version = m_parser.isSet(m_version);
        line.dataDir = m_parser.value(m_dataDir);
        line.snapshot = m_parser.value(m_snapshot);
        for (const CommandOption& option : commandOptions()) {
            if (!m_parser.isSet(option.name))
                continue;
            line.command = option.command;
            if (!option.operand.isEmpty())
                line.operand = m_parser.value(option.name);
        }
        return line;
    }

private:
    /// Empty when there is none.
    [[nodiscard]] QString firstError() const
    {
        if (const QStringList unknown = m_parser.unknownOptionNames(); !unknown.isEmpty())
            return u"Opzione sconosciuta: «%1»."_s.arg(unknown.first());
        if (!m_isUnderstood)
            return u"A un'opzione manca il suo valore, o ne ha uno di troppo."_s;
        if (const QStringList rest = m_parser.positionalArguments(); !rest.isEmpty())
            return u"Argomento inatteso: «%1»."_s.arg(rest.first());
        for (const QString& name : m_parser.optionNames()) {
            if (m_parser.values(name).contains(QString()))
                return u"L'opzione «--%1» ha un valore vuoto."_s.arg(name);
        }
        const auto isSet = [this](const CommandOption& option) { return m_parser.isSet(option.name); };
        if (std::ranges::count_if(commandOptions(), isSet) + (m_parser.isSet(m_snapshot) ? 1 : 0) > 1)
            return u"Due comandi insieme non si possono eseguire."_s;
        return {};
    }

    QCommandLineOption m_help{QStringList{u"h"_s, u"help"_s}};
    QCommandLineOption m_version{QStringList{u"v"_s, u"version"_s}};
    QCommandLineOption m_dataDir{u"data-dir"_s, {}, u"DIR"_s};
    QCommandLineOption m_snapshot{u"snapshot"_s, {}, u"FILE"_s};
    QCommandLineParser m_parser;
    bool m_isUnderstood = false;
};

} // namespace

tl::expected<CommandLine, QString> CommandLine::parse(const QStringList& arguments)
{
    return Parser(arguments).result();
}

bool CommandLine::nameCommand(const QStringList& arguments)
{
    return std::ranges::any_of(arguments, [](const QString& argument) {
        return std::ranges::any_of(commandOptions(), [&argument](const CommandOption& option) {
            const QString written = u"--"_s + option.name;
            return argument == written || argument.startsWith(written + u'=');
        });
    });
}

QString CommandLine::helpText()
{
    return u"Uso: abissora [OPZIONI]\n"
           "Il registro dell'attrezzatura subacquea e della sua manutenzione.\n"
           "\n"
           "Opzioni:\n"
           "  --data-dir DIR    Tiene tutti i dati, documenti compresi, nella cartella DIR:\n"
           "                    per provare il programma o per un secondo registro\n"
           "  --snapshot FILE   Disegna la finestra principale nel file PNG FILE e termina\n"
           "  -v, --version     Mostra la versione e termina\n"
           "  -h, --help        Mostra questo aiuto e termina\n"
           "\n"
           "Senza finestra, tornare indietro:\n"
           "  --list-states     Elenca gli stati precedenti del registro, uno per riga\n"
           "  --restore STATO   Ripristina lo stato di quel nome, dopo aver conservato quello\n"
           "                    di adesso\n"
           "  --check           Legge tutto il registro, dice che cosa è danneggiato, manca o\n"
           "                    è di troppo, e termina con 0 o, se c'è qualcosa, con 1\n"
           "\n"
           "Variabili d'ambiente:\n"
           "  ABISSORA_DATA_DIR  Come --data-dir, che se presente vale di più\n"_s;
}

QString CommandLine::versionText()
{
    const BuiltInPackageInformation package;
    return u"Abissora %1 (build %2)\n"_s.arg(package.value(u"CFBundleShortVersionString"_s).toString(),
                                             package.value(u"CFBundleVersion"_s).toString());
}

} // namespace abissora
