// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include "Literals.h"
#include "PackageInformation.h"

#include <QCommandLineParser>
#include <QRegularExpression>

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
        {Command::ListStates, u"list-states"_s, {}},  {Command::Check, u"check"_s, {}},
        {Command::Restore, u"restore"_s, u"STATO"_s}, {Command::Backup, u"backup"_s, u"FILE"_s},
        {Command::Print, u"print"_s, u"FILE"_s},      {Command::Export, u"export"_s, u"FILE"_s},
        {Command::Import, u"import"_s, u"FILE"_s},    {Command::Due, u"due"_s, {}},
    };
    return all;
}

struct WishOption
{
    Wish wish;
    QString name;
};

const QList<WishOption>& wishOptions()
{
    static const QList<WishOption> all{{Wish::NewItem, u"new-item"_s}, {Wish::ShowDue, u"show-due"_s}};
    return all;
}

/// Options that say more of one command.
const QList<CommandOption>& sideOptions()
{
    static const QList<CommandOption> all{
        {Command::Export, u"what"_s, u"TABELLA"_s},
        {Command::Import, u"yes"_s, {}},
        {Command::Print, u"item"_s, u"NOME"_s},
        {Command::Due, u"json"_s, {}},
    };
    return all;
}

const QString itemsTable = u"articoli"_s;
const QString recordsTable = u"manutenzioni"_s;

/// The options of the command line, and what an argument list says with them.
class Parser
{
public:
    explicit Parser(const QStringList& arguments)
    {
        m_parser.addOptions({m_help, m_version, m_dataDir, m_snapshot});
        for (const WishOption& option : wishOptions())
            m_parser.addOption(QCommandLineOption(option.name));
        for (const CommandOption& option : commandOptions())
            m_parser.addOption(QCommandLineOption(option.name, {}, option.operand));
        for (const CommandOption& option : sideOptions())
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
        line.item = m_parser.value(u"item"_s);
        for (const WishOption& option : wishOptions()) {
            if (m_parser.isSet(option.name))
                line.wish = option.wish;
        }
        for (const CommandOption& option : commandOptions()) {
            if (!m_parser.isSet(option.name))
                continue;
            line.command = option.command;
            if (!option.operand.isEmpty())
                line.operand = m_parser.value(option.name);
        }
        line.records = m_parser.value(u"what"_s) == recordsTable;
        line.yes = m_parser.isSet(u"yes"_s);
        line.json = m_parser.isSet(u"json"_s);
        if (const QStringList days = operands(); !days.isEmpty())
            line.days = days.first().toInt();
        return line;
    }

private:
    /// What stands beside the options: the days of «--due».
    [[nodiscard]] QStringList operands() const { return m_parser.positionalArguments(); }

    /// Empty when there is none.
    [[nodiscard]] QString firstError() const
    {
        if (const QStringList unknown = m_parser.unknownOptionNames(); !unknown.isEmpty())
            return u"Opzione sconosciuta: «%1»."_s.arg(unknown.first());
        if (!m_isUnderstood)
            return u"A un'opzione manca il suo valore, o ne ha uno di troppo."_s;
        const QStringList rest = operands();
        const qsizetype allowed = m_parser.isSet(u"due"_s) ? 1 : 0;
        if (rest.size() > allowed)
            return u"Argomento inatteso: «%1»."_s.arg(rest.at(allowed));
        static const QRegularExpression number(u"^[0-9]{1,6}$"_s);
        if (!rest.isEmpty() && !number.match(rest.first()).hasMatch())
            return u"«%1» non è un numero di giorni."_s.arg(rest.first());
        for (const QString& name : m_parser.optionNames()) {
            if (m_parser.values(name).contains(QString()))
                return u"L'opzione «--%1» ha un valore vuoto."_s.arg(name);
        }
        const auto isSet = [this](const auto& option) { return m_parser.isSet(option.name); };
        if (std::ranges::count_if(commandOptions(), isSet) + std::ranges::count_if(wishOptions(), isSet) +
                (m_parser.isSet(m_snapshot) ? 1 : 0) >
            1)
            return u"Due comandi insieme non si possono eseguire."_s;
        for (const CommandOption& option : sideOptions()) {
            const auto command = std::ranges::find(commandOptions(), option.command, &CommandOption::command);
            if (m_parser.isSet(option.name) && !isSet(*command))
                return u"L'opzione «--%1» va insieme a «--%2»."_s.arg(option.name, command->name);
        }
        const QString table = m_parser.value(u"what"_s);
        if (!table.isEmpty() && table != itemsTable && table != recordsTable)
            return u"«--what» vuole «%1» o «%2»."_s.arg(itemsTable, recordsTable);
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

QString CommandLine::wordFor(Wish wish)
{
    return std::ranges::find(wishOptions(), wish, &WishOption::wish)->name;
}

std::optional<Wish> CommandLine::wishFor(const QString& word)
{
    const auto option = std::ranges::find(wishOptions(), word, &WishOption::name);
    return option == wishOptions().end() ? std::nullopt : std::optional(option->wish);
}

QString CommandLine::helpText()
{
    return u"Uso: abissora [OPZIONI]\n"
           "Il registro dell'attrezzatura subacquea e della sua manutenzione.\n"
           "\n"
           "Opzioni:\n"
           "  --data-dir DIR    Tiene tutti i dati, documenti compresi, nella cartella DIR:\n"
           "                    per provare il programma o per un secondo registro\n"
           "  --new-item        Apre la finestra con il modulo di un nuovo articolo\n"
           "  --show-due        Apre la finestra sulla pagina «Manutenzione»; come --new-item, se il\n"
           "                    programma è già aperto lo chiede alla finestra che c'è\n"
           "  --snapshot FILE   Disegna la finestra principale nel file PNG FILE e termina\n"
           "  -v, --version     Mostra la versione e termina\n"
           "  -h, --help        Mostra questo aiuto e termina\n"
           "\n"
           "Senza finestra, tornare indietro:\n"
           "  --list-states     Elenca gli stati precedenti del registro, uno per riga\n"
           "  --restore STATO   Ripristina lo stato di quel nome, dopo aver conservato quello\n"
           "                    di adesso\n"
           "  --backup FILE     Scrive in FILE, che termina in .zip, una copia di tutto il\n"
           "                    registro, documenti compresi; anche mentre il programma è aperto\n"
           "  --restore FILE    Controlla tutta la copia FILE, che termina in .zip, e la mette al\n"
           "                    posto del registro, dopo aver conservato lo stato di adesso\n"
           "  --check           Legge tutto il registro, dice che cosa è danneggiato, manca o\n"
           "                    è di troppo, e termina con 0 o, se c'è qualcosa, con 1\n"
           "\n"
           "Senza finestra, scambiare dati:\n"
           "  --export FILE     Scrive gli articoli in una tabella (FILE.csv), le loro scadenze\n"
           "                    in un calendario (FILE.ics) o tutto il registro (FILE.json)\n"
           "    --what TABELLA  Nella tabella gli «articoli» o le «manutenzioni»\n"
           "  --import FILE     Mostra che cosa verrebbe importato da una tabella o da un registro\n"
           "    --yes           E lo importa, dopo aver conservato lo stato di adesso\n"
           "  --print FILE      Stampa nel file PDF FILE l'elenco di tutta l'attrezzatura\n"
           "    --item NOME     O la scheda di manutenzione dell'articolo che si chiama NOME, o di\n"
           "                    tutti quelli che si chiamano così\n"
           "  --due [GIORNI]    Elenca gli articoli attivi con il tagliando entro 30 giorni, o entro\n"
           "                    GIORNI, e termina con 1 se ce ne sono, altrimenti con 0\n"
           "    --json          In JSON, per altri programmi\n"
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
