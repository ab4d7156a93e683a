// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include "Literals.h"
#include "PackageInformation.h"

#include <QCommandLineParser>

namespace abissora {

tl::expected<CommandLine, QString> CommandLine::parse(const QStringList& arguments)
{
    const QCommandLineOption help(QStringList{u"h"_s, u"help"_s});
    const QCommandLineOption version(QStringList{u"v"_s, u"version"_s});
    const QCommandLineOption dataDir(u"data-dir"_s, {}, u"DIR"_s);
    const QCommandLineOption snapshot(u"snapshot"_s, {}, u"FILE"_s);
    const QCommandLineOption listStates(u"list-states"_s);
    const QCommandLineOption check(u"check"_s);
    const QCommandLineOption restore(u"restore"_s, {}, u"STATO"_s);
    QCommandLineParser parser;
    parser.addOptions({help, version, dataDir, snapshot, listStates, check, restore});
    const bool understood = parser.parse(QStringList{u"abissora"_s} + arguments);

    if (const QStringList unknown = parser.unknownOptionNames(); !unknown.isEmpty())
        return tl::unexpected(u"Opzione sconosciuta: «%1»."_s.arg(unknown.first()));
    if (!understood)
        return tl::unexpected(u"A un'opzione manca il suo valore, o ne ha uno di troppo."_s);
    if (const QStringList rest = parser.positionalArguments(); !rest.isEmpty())
        return tl::unexpected(u"Argomento inatteso: «%1»."_s.arg(rest.first()));
    for (const QCommandLineOption& option : {dataDir, snapshot, restore}) {
        if (parser.isSet(option) && parser.value(option).isEmpty())
            return tl::unexpected(u"L'opzione «--%1» ha un valore vuoto."_s.arg(option.names().first()));
    }
    const auto commands = std::ranges::count_if(std::array{&snapshot, &listStates, &check, &restore},
                                                [&](const auto* option) { return parser.isSet(*option); });
    if (commands > 1)
        return tl::unexpected(u"Due comandi insieme non si possono eseguire."_s);
    return CommandLine{parser.isSet(help),       parser.isSet(version), parser.value(dataDir), parser.value(snapshot),
                       parser.isSet(listStates), parser.isSet(check),   parser.value(restore)};
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
           "  --list-states     Elenca gli stati precedenti del registro, uno per riga, e termina\n"
           "  --restore STATO   Ripristina lo stato di quel nome, dopo aver conservato quello\n"
           "                    di adesso, e termina\n"
           "  --check           Legge tutto il registro, dice che cosa è danneggiato, manca o\n"
           "                    è di troppo, e termina con 0 o, se c'è qualcosa, con 1\n"
           "  -v, --version     Mostra la versione e termina\n"
           "  -h, --help        Mostra questo aiuto e termina\n"
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
