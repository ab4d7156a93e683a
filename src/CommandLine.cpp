// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include "PackageInformation.h"

#include <QCommandLineParser>

namespace abissora {

tl::expected<CommandLine, QString> CommandLine::parse(const QStringList& arguments)
{
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    const QCommandLineOption version(QStringList{QStringLiteral("v"), QStringLiteral("version")});
    const QCommandLineOption dataDir(QStringLiteral("data-dir"), {}, QStringLiteral("DIR"));
    const QCommandLineOption snapshot(QStringLiteral("snapshot"), {}, QStringLiteral("FILE"));
    QCommandLineParser parser;
    parser.addOptions({help, version, dataDir, snapshot});
    const bool understood = parser.parse(QStringList{QStringLiteral("abissora")} + arguments);

    if (const QStringList unknown = parser.unknownOptionNames(); !unknown.isEmpty())
        return tl::unexpected(QStringLiteral("Opzione sconosciuta: «%1».").arg(unknown.first()));
    if (!understood)
        return tl::unexpected(QStringLiteral("A un'opzione manca il suo valore, o ne ha uno di troppo."));
    if (const QStringList rest = parser.positionalArguments(); !rest.isEmpty())
        return tl::unexpected(QStringLiteral("Argomento inatteso: «%1».").arg(rest.first()));
    for (const QCommandLineOption& option : {dataDir, snapshot}) {
        if (parser.isSet(option) && parser.value(option).isEmpty())
            return tl::unexpected(QStringLiteral("L'opzione «--%1» ha un valore vuoto.").arg(option.names().first()));
    }
    return CommandLine{parser.isSet(help), parser.isSet(version), parser.value(dataDir), parser.value(snapshot)};
}

QString CommandLine::helpText()
{
    return QStringLiteral("Uso: abissora [OPZIONI]\n"
                          "Il registro dell'attrezzatura subacquea e della sua manutenzione.\n"
                          "\n"
                          "Opzioni:\n"
                          "  --data-dir DIR    Tiene tutti i dati, documenti compresi, nella cartella DIR:\n"
                          "                    per provare il programma o per un secondo registro\n"
                          "  --snapshot FILE   Disegna la finestra principale nel file PNG FILE e termina\n"
                          "  -v, --version     Mostra la versione e termina\n"
                          "  -h, --help        Mostra questo aiuto e termina\n"
                          "\n"
                          "Variabili d'ambiente:\n"
                          "  ABISSORA_DATA_DIR  Come --data-dir, che se presente vale di più\n");
}

QString CommandLine::versionText()
{
    const BuiltInPackageInformation package;
    return QStringLiteral("Abissora %1 (build %2)\n")
        .arg(package.value(QStringLiteral("CFBundleShortVersionString")).toString(),
             package.value(QStringLiteral("CFBundleVersion")).toString());
}

} // namespace abissora
