#pragma once

#include <QDialog>

#include <memory>

class QCheckBox;
class clsAppProperties;
struct QuizOptions;

namespace Ui {
class frmQuizOptions;
}

/// The dialog that changes how quizzes are asked and judged. It works on the settings and writes them on OK.
class frmQuizOptions : public QDialog
{
    Q_OBJECT

public:
    /// What it takes to read words aloud is offered only where words can be spoken.
    frmQuizOptions(clsAppProperties &settings, bool canSpeak, QWidget *parent = nullptr);
    ~frmQuizOptions() override;

public Q_SLOTS:
    void accept() override;

private:
    struct Box
    {
        QCheckBox *box;
        bool &value;
    };
    std::vector<Box> boxes(QuizOptions &options) const;

    std::unique_ptr<Ui::frmQuizOptions> m_ui;
    clsAppProperties &m_settings;
};
