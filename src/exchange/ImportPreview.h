#pragma once

#include "widgets/grid/FlexGrid.h"

struct Vocabulary;

/// The first rows of a list as they would arrive, in a grid that cannot be edited.
class ImportPreview : public FlexGrid
{
    Q_OBJECT

public:
    static constexpr int MostRows = 100;

    explicit ImportPreview(QWidget *parent = nullptr);

    /// Row 0 holds the names of the languages; where they have none, the program's own stand.
    void show(Vocabulary &&words);

protected:
    void resizeEvent(QResizeEvent *event) override;
};
