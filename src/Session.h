// SPDX-License-Identifier: MIT
#pragma once

#include "ApplicationDirectories.h"
#include "CommandLine.h"
#include "FolderLock.h"
#include "HttpClient.h"
#include "Product.h"
#include "RegisterAhead.h"

#include <QObject>
#include <memory>

class QApplication;

namespace abissora {

class MainWindow;
class MarevoloApp;

/// The program's work on one register, from its first look at the files to the end. State objects never load anew:
/// after a restoration the whole entry object is created again.
class Session : public QObject
{
    Q_OBJECT

public:
    /// Everything passed by reference must outlive it. Clears up after a process that was killed, if it may write.
    Session(QApplication& application, ApplicationDirectories directories, Product product, HttpClient& http,
            FolderLock& lock, const RegisterAhead& ahead = {});
    ~Session() override;

    /// As MarevoloApp's.
    void showMainWindow();
    [[nodiscard]] MainWindow& mainWindow();
    /// As the person would in the main window. Nothing happens over a sheet, an alert or a file panel that is open,
    /// nor while an earlier state takes the place of this one.
    void fulfil(Wish wish);
    [[nodiscard]] MarevoloApp& app() { return *m_app; }

private:
    void clearUpAfterOthers();
    void create(const RegisterAhead& ahead);
    void renew(const RegisterAhead& ahead);

    QApplication& m_application;
    ApplicationDirectories m_directories;
    Product m_product;
    HttpClient& m_http;
    FolderLock& m_lock;
    std::unique_ptr<MarevoloApp> m_app;
};

} // namespace abissora
