#pragma once

#include <QDialog>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace Ui {
class QuestionDlg;
}

// The exit survey: why is the application being uninstalled? One question, three answers.
//
// Run with exec(); only the event callback reports the outcome, with the codes of dialog_actions.h:
// shown from the constructor, then an answer or a skip. Escape leaves the survey without a
// report. An answer is reported before the dialog closes, so what the callback opens covers it.
//
// Threads: the GUI thread only.
class QuestionDlg : public QDialog
{
    Q_OBJECT

public:
    // (event code, event name, value); the value is empty for all events of this dialog.
    using EventCallback = std::function<void(std::int32_t, const std::string&, const std::string&)>;

    // `applicationName` is shown in the title; `language` is the code of the settings, such as
    // "de". An empty callback makes the dialog silent.
    QuestionDlg(QWidget* parent, const std::string& applicationName, const std::string& language,
                EventCallback eventCallback);
    ~QuestionDlg() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void setUpFonts();
    void answer(std::int32_t code, const char* name);
    void report(std::int32_t code, const char* name);

    std::unique_ptr<Ui::QuestionDlg> ui;
    std::string language;
    std::string eventValue;
    EventCallback eventCallback;
    bool answered = false; // nothing more is reported
};
