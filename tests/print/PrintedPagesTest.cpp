#include "print/QtPrinter.h"
#include "print/rules/modUtskrift.h"
#include "support/RecordingPrinter.h"

#include <QProcess>

namespace {

QString outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString() << " is needed to read the printed pages back";
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// Vocabularies printed to PDF files and read back.
struct PrintedPages : ::testing::Test
{
    QTemporaryDir folder;
    QtPrinter printer;
    modUtskrift layout{printer};
    PairSource source;
    QString file = folder.filePath("out.pdf");

    void print()
    {
        printer.printer().setOutputFileName(file);
        layout.PrintLayout(modUtskrift::PrintMode, source);
        printer.endDoc();
    }
};

TEST_F(PrintedPages, HoldWordsOfEveryScriptOnSheetsOfA4)
{
    source.fill(120);
    source.pairs[1] = {"слово", "λέξη"};
    source.pairs[119] = {"漢字", "שלום"};
    print();
    const QString info = outputOf("pdfinfo", {file}).simplified();
    EXPECT_TRUE(info.contains("Pages: 3 ") && info.contains("(A4)")) << info.toStdString();
    const QString text = outputOf("pdftotext", {file, "-"});
    for (const auto &[first, second] : source.pairs)
        EXPECT_TRUE(text.contains(first) && text.contains(second)) << text.toStdString();
}

TEST_F(PrintedPages, AFileThatCannotBeWrittenIsAPrinterError)
{
    source.fill(5);
    for (const char *path : {"/no/such/folder/out.pdf", "/dev/full"}) {
        file = path;
        EXPECT_THROW(print(), PrinterError) << path;
    }
    file = folder.filePath("out.pdf");
    EXPECT_NO_THROW(print()) << "the next run is not concerned";
}

} // namespace
