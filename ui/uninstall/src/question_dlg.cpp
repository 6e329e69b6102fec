#include "ui/uninstall/src/question_dlg.h"

#include "ui/uninstall/src/dialog_actions.h"
#include "ui_question_dlg.h"

#include <QCloseEvent>
#include <QIcon>
#include <QKeyEvent>

#include <utility>

namespace {

constexpr qreal titleLetterSpacing = 93;
constexpr qreal buttonLetterSpacing = 96;

// The Portuguese answers do not fit into the form's 280 pixels.
constexpr const char* wideLanguage = "pt";
constexpr int wideButtonWidth = 316;

} // namespace

QuestionDlg::QuestionDlg(QWidget* parent, const std::string& applicationName,
                         const std::string& language, EventCallback eventCallback)
    : QDialog(parent), ui(std::make_unique<Ui::QuestionDlg>()), language(language),
      eventCallback(std::move(eventCallback))
{
    ui->setupUi(this);
    setWindowTitle(tr("Uninstall %1").arg(QString::fromLatin1(applicationName.c_str())));
    setWindowIcon(QIcon(QStringLiteral(":/resources/common.ico")));
    setWindowFlags((windowFlags() & ~Qt::WindowContextHelpButtonHint) | Qt::WindowCloseButtonHint);
    setUpFonts();

    namespace events = uninstall::dialog_event;
    connect(ui->btnOne, &QPushButton::clicked, this,
            [this] { answer(events::surveyLicense, "uninstall_quiz_license"); });
    connect(ui->btnTwo, &QPushButton::clicked, this,
            [this] { answer(events::surveyQuality, "uninstall_quiz_quality"); });
    connect(ui->btnThree, &QPushButton::clicked, this,
            [this] { answer(events::surveyFeatures, "uninstall_quiz_features"); });

    if (this->language == wideLanguage) {
        for (QPushButton* button : {ui->btnOne, ui->btnTwo, ui->btnThree})
            button->setFixedWidth(wideButtonWidth);
    }
    ui->retranslateUi(this);

    report(events::shown, "uninstall_quiz");
}

QuestionDlg::~QuestionDlg() = default;

void QuestionDlg::setUpFonts()
{
    QFont titleFont = ui->labelTitle->font();
    titleFont.setLetterSpacing(QFont::PercentageSpacing, titleLetterSpacing);
    ui->labelTitle->setFont(titleFont);

    QFont buttonFont = ui->btnOne->font();
    buttonFont.setLetterSpacing(QFont::PercentageSpacing, buttonLetterSpacing);
    for (QPushButton* button : {ui->btnOne, ui->btnTwo, ui->btnThree})
        button->setFont(buttonFont);
}

void QuestionDlg::answer(std::int32_t code, const char* name)
{
    // The report opens the offer, and assistive programs can press these buttons behind it.
    if (std::exchange(answered, true))
        return;
    report(code, name);
    close();
}

void QuestionDlg::report(std::int32_t code, const char* name)
{
    if (eventCallback)
        eventCallback(code, name, eventValue);
}

void QuestionDlg::keyPressEvent(QKeyEvent* event)
{
    // Every other key is swallowed.
    if (event->key() != Qt::Key_Escape)
        return;
    answered = true;
    close();
}

void QuestionDlg::closeEvent(QCloseEvent* event)
{
    if (!std::exchange(answered, true))
        report(uninstall::dialog_event::closed, uninstall::surveySkipped);
    event->accept();
}
