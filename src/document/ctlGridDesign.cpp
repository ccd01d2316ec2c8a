#include "document/ctlGrid.h"

#include "document/rules/Vocabulary.h"
#include "resources/Pictures.h"

namespace {

/// Device pixels on every screen: some platforms do not scale the hot spot of a finer image along.
constexpr QSize PointerSize(24, 24);
constexpr int CustomPointer = 99;

} // namespace

QVariantMap ctlGrid::documentDesign()
{
    const QFont font = VocabularyFont{QStringLiteral("Arial"), 9.75}.toFont();
    return {{QStringLiteral("Cols"), 3},
            {QStringLiteral("Rows"), 101},
            {QStringLiteral("FixedCols"), 1},
            {QStringLiteral("FixedRows"), 1},
            {QStringLiteral("BackColorFixed"), FlexGridLook::ButtonFaceColour},
            {QStringLiteral("ForeColorFixed"), FlexGridLook::ButtonTextColour},
            {QStringLiteral("BackColorSel"), FlexGridLook::HighlightColour},
            {QStringLiteral("ForeColorSel"), FlexGridLook::HighlightTextColour},
            {QStringLiteral("MouseIcon"), picture(PictureGridCursor).pixmap(PointerSize, 1.0)},
            {QStringLiteral("MousePointer"), CustomPointer},
            {QStringLiteral("Font"), font}};
}
