// SPDX-License-Identifier: MIT
#include "Program.h"

#include "CommandLine.h"
#include "Commands.h"
#include "ExitStatus.h"
#include "FolderLock.h"
#include "Literals.h"
#include "MainWindow.h"
#include "NoAnswerAlert.h"
#include "ProcessSetup.h"
#include "QuitSignals.h"
#include "Session.h"
#include "SettingsViewModel.h"
#include "SingleInstance.h"
#include "Snapshot.h"
#include "Theme.h"
#include "ToolkitMessages.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <cstdio>
#include <cstdlib>
#include <optional>

namespace abissora {

namespace {

constexpr int standardError = 2;

void write(std::FILE* stream, const QString& text)
{
    std::fputs(qUtf8Printable(text), stream);
}

int fail(const QString& sentence)
{
    write(stderr, sentence + u'\n');
    return EXIT_FAILURE;
}

QString noDisplayText()
{
    return u"Abissora non trova uno schermo su cui aprire la finestra; con «--snapshot FILE» la disegna "
           "in un file PNG."_s;
}

/// False when a window cannot be opened for want of a screen, as on a server. True where that cannot be told.
bool hasDisplay(const QStringList& arguments)
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") || arguments.contains("-platform"_L1);
#else
    Q_UNUSED(arguments)
    return true;
#endif
}

/// Until the toolkit has found its screen. One that finds none after all ends the program with a sentence instead of
/// aborting it.
void explainMissingDisplay(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtFatalMsg) {
        ToolkitMessages::writeLast(noDisplayText());
        std::_Exit(exitStatus::unavailable);
    }
    // What the toolkit says on its way there is no help to the person.
    if (!message.contains("qt.qpa"_L1) && !message.contains("platform plugin"_L1) &&
        !message.contains("could not connect to display"_L1))
        ToolkitMessages::write(type, context, message);
}

QStringList rawArguments(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

bool answered(bool help, bool version)
{
    if (help)
        write(stdout, CommandLine::helpText());
    else if (version)
        write(stdout, CommandLine::versionText());
    return help || version;
}

/// --help and --version are answered without a screen, and so before the toolkit looks for one, and whatever else is
/// asked.
bool answered(const QStringList& arguments)
{
    const auto asks = [&](const char* brief, const char* full) {
        return arguments.contains(QLatin1String(brief)) || arguments.contains(QLatin1String(full));
    };
    const auto commandLine = CommandLine::parse(arguments); // knows "-hv"
    return answered(asks("-h", "--help") || (commandLine && commandLine->help),
                    asks("-v", "--version") || (commandLine && commandLine->version));
}

/// A name that is being looked up cannot be given up, and the toolkit would wait for the answer before it ends: many
/// seconds where nobody answers. Nothing else is left to do by now.
[[noreturn]] void endAtOnce(int status)
{
    std::fflush(nullptr);
    std::_Exit(status);
}

/// As from the menu; but what still wants to be asked about keeps nobody who ends the session or the machine.
void endAsUsual()
{
    QCoreApplication::quit();
    QCoreApplication::exit(exitStatus::done);
}

ApplicationDirectories directoriesFor(const CommandLine& commandLine)
{
    const QString chosen =
        commandLine.dataDir.isEmpty() ? qEnvironmentVariable("ABISSORA_DATA_DIR") : commandLine.dataDir;
    return chosen.isEmpty() ? ApplicationDirectories::standard() : ApplicationDirectories(chosen, true);
}

int failToParse(const QString& sentence)
{
    fail(sentence + u" Con «--help» l'elenco delle opzioni."_s);
    return exitStatus::usage;
}

int runWithoutScreen(const QStringList& arguments)
{
    const auto commandLine = CommandLine::parse(arguments);
    if (!commandLine)
        return failToParse(commandLine.error());
    return runCommand(*commandLine, directoriesFor(*commandLine));
}

/// As the person chose it in the settings.
Scheme storedScheme(const ApplicationDirectories& directories)
{
    StandardOutput console;
    KeepNothing keeper;
    PreferencesStore preferences(directories.preferences(), keeper);
    return SettingsViewModel(preferences, console).darkMode() ? Scheme::Dark : Scheme::Light;
}

/// False when the person gives up.
bool wantsToTryAgain(QApplication& application, const ApplicationDirectories& directories)
{
    applyTheme(application, storedScheme(directories));
    NoAnswerAlert alert;
    QObject::connect(&alert, &QDialog::finished, &application, &QApplication::quit);
    alert.show();
    QApplication::exec();
    // What follows may wait for a while and paints nothing.
    QGuiApplication::sync();
    return alert.result() == QDialog::Accepted;
}

/// Begun before the toolkit is: both take their time, and neither waits for the other.
RegisterAhead registerAhead(const QStringList& arguments)
{
    const auto commandLine = CommandLine::parse(arguments); // fails where an argument is the toolkit's
    if (!commandLine)
        return {};
    return RegisterAhead(directoriesFor(*commandLine));
}

int run(QApplication& application, const CommandLine& commandLine, const Product& product, HttpClient& http,
        const RegisterAhead& ahead)
{
    const ApplicationDirectories directories = directoriesFor(commandLine);
    const bool drawsToFile = !commandLine.snapshot.isEmpty();
    FolderLock lock(directories.root());
    SingleInstance instance(lock);
    const QString wish = commandLine.wish ? CommandLine::wordFor(*commandLine.wish) : QString();
    auto outcome = instance.acquire(wish);
    while (outcome == SingleInstance::Outcome::NoAnswer) {
        if (drawsToFile)
            return fail(NoAnswerAlert::sentence());
        if (!wantsToTryAgain(application, directories))
            return EXIT_FAILURE;
        outcome = instance.acquire(wish);
    }
    if (outcome == SingleInstance::Outcome::CameForward) {
        write(stderr, u"Abissora è già aperta su questo registro: la sua finestra passa in primo piano.\n"_s);
        return drawsToFile ? EXIT_FAILURE : EXIT_SUCCESS;
    }

    // What is drawn is finished or not there; a window has the person's work in it.
    std::optional<QuitSignals> signals;
    if (!drawsToFile)
        signals.emplace(endAsUsual);
    Session session(application, directories, product, http, lock, ahead);
    QObject::connect(&instance, &SingleInstance::activationRequested, &session, &Session::showMainWindow);
    QObject::connect(&instance, &SingleInstance::wished, &session, [&session](const QString& word) {
        if (const auto theirs = CommandLine::wishFor(word))
            session.fulfil(*theirs);
    });
    if (!drawsToFile) {
        session.showMainWindow();
        if (commandLine.wish) // once the window stands
            QMetaObject::invokeMethod(
                &session, [&] { session.fulfil(*commandLine.wish); }, Qt::QueuedConnection);
        return QApplication::exec();
    }
    Snapshot snapshot(session.mainWindow(), commandLine.snapshot);
    QObject::connect(&snapshot, &Snapshot::taken, &application, &QApplication::quit);
    QObject::connect(&snapshot, &Snapshot::failed, &application, [&](const QString& reason) {
        QApplication::exit(fail(u"Impossibile scrivere «%1»: %2"_s.arg(commandLine.snapshot, reason)));
    });
    // Only drawn: no check for updates begins.
    session.mainWindow().show();
    return QApplication::exec();
}

} // namespace

int runProgram(int argc, char** argv, Product product, const OpenUpdateSource& openUpdateSource)
{
    ProcessSetup::openStandardStreams();
    // Whoever reads the log may leave at any time.
    ProcessSetup::outliveFailedWrites();
    const QStringList arguments = rawArguments(argc, argv);
    if (answered(arguments))
        return EXIT_SUCCESS;
    if (CommandLine::nameCommand(arguments))
        return runWithoutScreen(arguments);
    if (!hasDisplay(arguments)) {
        const bool drawsToFile = std::ranges::any_of(
            arguments, [](const QString& argument) { return argument.startsWith("--snapshot"_L1); });
        if (!drawsToFile) {
            write(stderr, noDisplayText() + u'\n');
            return exitStatus::unavailable;
        }
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }

    QCoreApplication::setApplicationName(u"abissora"_s);
    QGuiApplication::setDesktopFileName(QStringLiteral(ABISSORA_APPLICATION_ID));
    const ToolkitMessages messages(standardError);
    qInstallMessageHandler(explainMissingDisplay);
    const RegisterAhead ahead = registerAhead(arguments);
    QApplication application(argc, argv);
    qInstallMessageHandler(ToolkitMessages::handler());
    QTranslator translator;
    if (translator.load(u"qtbase_it"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&translator);

    const auto commandLine = CommandLine::parse(QCoreApplication::arguments().mid(1));
    if (!commandLine)
        return failToParse(commandLine.error());
    if (answered(commandLine->help, commandLine->version)) // "-hv"
        return EXIT_SUCCESS;

    const std::optional<UpdateSource> updates = openUpdateSource();
    if (!updates) {
        NoHttpClient nobody;
        return run(application, *commandLine, product, nobody, ahead);
    }
    product.manifestURL = updates->manifestURL;
    const int status = run(application, *commandLine, product, *updates->http, ahead);
    if (updates->isBusy())
        endAtOnce(status);
    return status;
}

} // namespace abissora
