#pragma once

#include <QSvgRenderer>
#include <QWidget>

/// The product's name drawn as a picture, sharp at every scale.
class ProductPicture : public QWidget
{
    Q_OBJECT

public:
    explicit ProductPicture(QWidget *parent = nullptr);

    QSize sizeHint() const override { return m_drawing.defaultSize(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QSvgRenderer m_drawing;
};
