#include "app/MenuLayout.h"

#include <map>

namespace MenuLayout {

namespace {

/// Keys separated by blanks.
QStringList keys(const char *words)
{
    return QString::fromLatin1(words).split(u' ');
}

Button button(const char *key, int toolTipId, int hoverHelpId, int whatsThisId, const char *command)
{
    return {QString::fromLatin1(key), toolTipId, hoverHelpId, whatsThisId, QString::fromLatin1(command)};
}

Button separator()
{
    return {{}, 0, 0, 0, {}};
}

} // namespace

const std::vector<Menu> &menus()
{
    static const std::vector<Menu> all{
        {QStringLiteral("mnuFile"), 400, 1030,
         keys("mnuFileNew mnuFileOpen mnuFileClose -mnuFile(3) mnuFileSave mnuFileSaveAs mnuFileImport mnuFileExport "
              "-mnuFile(8) mnuFilePageSetup mnuFilePrintPreview mnuFilePrint mnuFilePrintTest")},
        {QStringLiteral("mnuEdit"), 418, 1040,
         keys("mnuEditUndo -mnuEdit(1) mnuEditCut mnuEditCopy mnuEditPaste mnuEditClear -mnuEdit(5) mnuEditInsert "
              "mnuEditDelete -mnuEdit(5) mnuEditFind mnuEditReplace - mnuEditPasteList")},
        {QStringLiteral("mnuVocabulary"), 431, 1050,
         keys("mnuVocabularyLanguage -mnuToolbar(0) mnuVocabularyRowHeight mnuVocabularyColumnWidth "
              "-mnuToolbar(3) mnuVocabularyFont mnuVocabularySort - mnuVocabularyCheck mnuVocabularyProgress - "
              "mnuVocabularyLetters >mnuVocabularyZoom")},
        {QStringLiteral("mnuMode"), 439, 1060, keys("mnuMode1 mnuMode2 mnuMode3 mnuMode4 mnuMode5")},
        {QStringLiteral("mnuQuiz"), 445, 1070,
         keys("mnuQuizStudy mnuQuizMultiple mnuQuizQA - mnuQuizContinue - >mnuQuizWords mnuQuizOptions")},
        {QStringLiteral("mnuWindow"), 449, 1080, keys("mnuWindow(0) mnuWindow(1) mnuWindow(2) mnuWindow(3)")},
        {QStringLiteral("mnuHelp"), 454, 1090, keys("mnuHelpTopic -mnuHelp(4) mnuHelpAbout")},
    };
    return all;
}

const Submenu &submenu(const QString &key)
{
    static const std::map<QString, Submenu> all{
        {QStringLiteral("mnuQuizWords"),
         {QStringLiteral("mnuQuizWords"), 14300, 14301,
          keys("mnuWordsAll mnuWordsSelected mnuWordsDue mnuWordsMissed mnuWordsHardest")}},
        {QStringLiteral("mnuVocabularyZoom"),
         {QStringLiteral("mnuVocabularyZoom"), 14950, 14951, keys("mnuZoomIn mnuZoomOut mnuZoomNormal")}},
    };
    return all.at(key);
}

const std::vector<Button> &standardButtons()
{
    static const std::vector<Button> all{
        button("New", 1000, 200, 20000, "mnuFileNew"),
        button("Open", 1001, 201, 20001, "mnuFileOpen"),
        button("Save", 1002, 202, 20002, "mnuFileSave"),
        separator(),
        button("Print", 1003, 204, 20003, "mnuFilePrint"),
        button("Preview", 1004, 205, 20004, "mnuFilePrintPreview"),
        separator(),
        button("Cut", 1005, 207, 20005, "mnuEditCut"),
        button("Copy", 1006, 208, 20006, "mnuEditCopy"),
        button("Paste", 1007, 209, 20007, "mnuEditPaste"),
        separator(),
        button("Undo", 1008, 211, 20008, "mnuEditUndo"),
        separator(),
        button("Insert", 1009, 213, 20009, "mnuEditInsert"),
        button("Delete", 1010, 214, 20010, "mnuEditDelete"),
        separator(),
        button("Find", 1011, 216, 20011, "mnuEditFind"),
        button("Font", 1012, 217, 20012, "mnuVocabularyFont"),
        button("Sort", 1013, 218, 20013, "mnuVocabularySort"),
        separator(),
        button("Languages", 1014, 220, 20014, "mnuVocabularyLanguage"),
        button("Model", 1015, 221, 20015, "Model"),
        button("Quiz", 1016, 222, 20016, "Quiz"),
        separator(),
        button("Help", 1017, 224, 20017, "Help"),
    };
    return all;
}

const std::vector<Button> &previewButtons()
{
    static const std::vector<Button> all{
        button("Previous", 1101, 231, 20018, "Previous"),
        button("Next", 1102, 232, 20019, "Next"),
        separator(),
        button("PageSetup", 1103, 234, 20020, "PageSetup"),
        button("Print2", 1104, 235, 20021, "mnuFilePrint"),
        separator(),
        button("Close", 1105, 237, 20022, "Close"),
        separator(),
        button("Help", 1106, 239, 20023, "Help"),
    };
    return all;
}

const std::vector<ContextEntry> &gridMenu()
{
    static const std::vector<ContextEntry> all{
        {QStringLiteral("Cut"), 470, QStringLiteral("mnuEditCut"), 22},
        {QStringLiteral("Copy"), 471, QStringLiteral("mnuEditCopy"), 23},
        {QStringLiteral("Paste"), 472, QStringLiteral("mnuEditPaste"), 24},
        {QStringLiteral("Sep"), 0, {}, 0},
        {QStringLiteral("Lang"), 474, QStringLiteral("mnuVocabularyLanguage"), 33},
    };
    return all;
}

} // namespace MenuLayout
