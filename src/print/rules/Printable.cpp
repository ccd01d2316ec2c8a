#include "print/rules/Printable.h"

#include "print/rules/modUtskrift.h"

Printable::Printable(LayOut layOut, const QString &folder)
    : m_layOut(std::move(layOut))
    , m_folder(folder)
{
}

Printable::Printable(PrintSource vocabulary)
    : Printable(std::make_shared<const PrintSource>(std::move(vocabulary)))
{
}

Printable::Printable(const std::shared_ptr<const PrintSource> &vocabulary)
    : Printable(
          [vocabulary](const PrinterMetrics &printer, double ZoomDivisor) {
              return std::make_unique<const PrintLayout>(vocabulary, printer, ZoomDivisor);
          },
          vocabulary->Folder)
{
}
