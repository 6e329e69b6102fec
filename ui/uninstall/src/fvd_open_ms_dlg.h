#pragma once

#include <QDialog>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace Ui {
class FvdOpenMsDlg;
}

namespace uninstall {
struct StorePartner;
}

// The store offer: one of two partner applications in the Microsoft Store.
//
// Run with exec(); only the event callback reports the outcome, with the codes of dialog_actions.h:
// shown from the constructor, then either storeOpened or closed. The dialog does not open the
// store itself.
//
// Threads: the GUI thread only.
class FvdOpenMsDlg : public QDialog
{
    Q_OBJECT

public:
    using EventCallback = std::function<void(std::int32_t, const std::string&)>;

    // `applicationId` is the application being uninstalled; `exitMode` is for offers made when an
    // application is closed. An empty callback makes the dialog silent.
    FvdOpenMsDlg(QWidget* parent, int applicationId, bool exitMode, EventCallback eventCallback);
    ~FvdOpenMsDlg() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void setUpFonts();
    void setUpPictures();
    void setTexts(const uninstall::StorePartner& partner);
    void openStore();
    void report(std::int32_t code);

    std::unique_ptr<Ui::FvdOpenMsDlg> ui;
    bool clicked = false; // nothing more is reported
    EventCallback eventCallback;
    std::string eventName;
};
