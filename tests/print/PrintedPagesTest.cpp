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
    std::string info(const QString &key) const
    {
        const QStringList lines = outputOf("pdfinfo", {file}).split('\n').filter(key + ':');
        return lines.value(0).section(':', 1).trimmed().toStdString();
    }
    /// The lines of a page (from 1), their blanks drawn together.
    QStringList page(int number) const
    {
        const QString n = QString::number(number);
        QStringList lines;
        for (const QString &line : outputOf("pdftotext", {"-layout", "-f", n, "-l", n, file, "-"}).split('\n')) {
            if (!line.simplified().isEmpty())
                lines.append(line.simplified());
        }
        return lines;
    }
};

TEST_F(PrintedPages, HoldTheWordsInTheirOrder)
{
    source.fill(120);
    source.pairs[1] = {"être à l'heure", "pünktlich sein"};
    print();
    EXPECT_EQ(info("Pages"), std::to_string(layout.pageCount()));
    EXPECT_THAT(info("Page size"), ::testing::HasSubstr("(A4)"));
    int row = 0;
    for (int number = 1; number <= layout.pageCount(); ++number) {
        QStringList lines = page(number);
        ASSERT_GE(lines.size(), 3);
        EXPECT_EQ(lines.takeFirst(), "Glosaria - Words");
        EXPECT_EQ(lines.takeFirst(), "English German");
        EXPECT_EQ(lines.takeLast(), QString::number(number));
        for (const QString &line : lines) {
            const auto &[first, second] = source.pairs.at(size_t(row++));
            EXPECT_EQ(line, QString("%1 %2 %3").arg(row).arg(first, second));
        }
    }
    EXPECT_EQ(row, 120);
}

TEST_F(PrintedPages, WordsOfEveryScriptAreThere)
{
    source.pairs = {{"слово", "λέξη"}, {"漢字", "שלום"}};
    print();
    const QString text = page(1).join('\n');
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
