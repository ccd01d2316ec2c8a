#include "services/desktop/Composition.h"

#include <QGuiApplication>
#include <QInputMethod>

void Composition::finish()
{
    QGuiApplication::inputMethod()->commit();
    QGuiApplication::inputMethod()->reset(); // some give it only now
}
