#pragma once

#include <QColor>
#include <QIcon>
#include <QImage>

/// The numbers of the program's pictures. Three quiz kinds and five quiz modes have theirs fixed: a button's picture
/// tells the kind, 22 + the mode the mode.
enum PictureNumber {
    PictureNew = 1,
    PictureOpen,
    PictureSave,
    PictureSaveAs,
    PictureClose,
    PicturePageSetup,
    PicturePreview,
    PicturePrint,
    PicturePractice = 9,
    PictureMultipleChoice,
    PictureQuestionAnswer,
    PictureExit = 12,
    PictureUndo,
    PictureCut,
    PictureCopy,
    PicturePaste,
    PictureClear,
    PictureInsert,
    PictureDelete,
    PictureFind,
    PictureReplace,
    PictureLanguages,
    PictureMode1 = 23,
    PictureMode2,
    PictureMode3,
    PictureMode4,
    PictureMode5,
    PictureRowHeight = 28,
    PictureColumnWidth,
    PictureFont,
    PictureSort,
    PictureCascade,
    PictureTileHorizontally,
    PictureTileVertically,
    PictureArrangeIcons,
    PictureHelpTopics,
    PictureWhatsThis,
    PictureAbout,
    PicturePrevious,
    PictureNext,
    PictureWebLink,
    PictureMailLink,
    PictureHome,
    PictureNavigation,
    PictureZoomIn,
    PictureZoomOut,
    PictureZoomNormal,
    PictureRight,       ///< check mark beside a correct answer
    PictureWrong,       ///< X beside a wrong answer
    PictureGridCursor,  ///< mouse pointer over the grid, hot spot in the middle
    PictureApplication, ///< icon of the program
    PictureDocument,    ///< icon of a vocabulary
    PictureMore,        ///< what has no room on a bar
    PictureMinimize,    ///< from here on what is done with a document's window
    PictureMaximize,
    PictureRestore,
    PictureChecked, ///< check mark of a menu entry
    PictureChoices, ///< arrow that offers choices
    PictureSpeak,   ///< reads aloud
};

/// The icon with this number, crisp at every size: it is drawn anew for the size, the screen and the palette's colours
/// of the moment; disabled it is grey. An unknown number gives a null icon.
QIcon picture(int number);

/// Draws a picture into a square of this many pixels, its lines in the given colours.
QImage drawPicture(int number, int pixels, const QColor &line, const QColor &accent);
