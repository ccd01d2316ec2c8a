#include "print/PrintCommands.h"
#include "print/QtPrinter.h"
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
class PrintedPages : public ::testing::Test
{
protected:
    QTemporaryDir folder;
    QtPrinter printer;
    modUtskrift layout{printer};
    PairSource source;
    QString file = folder.filePath(QStringLiteral("out.pdf"));

    void print(int copies = 1)
    {
        printer.printer().setOutputFileName(file);
        for (int copy = 0; copy < copies; ++copy)
            layout.PrintLayout(modUtskrift::PrintMode, source);
        printer.endDoc();
    }
    QString info(const QString &key) const
    {
        for (const QString &line : outputOf(QStringLiteral("pdfinfo"), {file}).split(u'\n')) {
            if (line.startsWith(key + u':'))
                return line.section(u':', 1).simplified();
        }
        return {};
    }
    /// The lines of a page (from 1), their blanks drawn together.
    QStringList page(int number) const
    {
        const QString n = QString::number(number);
        const QString text =
            outputOf(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), QStringLiteral("-f"), n,
                                                   QStringLiteral("-l"), n, file, QStringLiteral("-")});
        QStringList lines;
        for (const QString &line : text.split(u'\n')) {
            if (!line.simplified().isEmpty())
                lines.append(line.simplified());
        }
        return lines;
    }
};

TEST_F(PrintedPages, HoldTheWordsInTheirOrder)
{
    source.fill(120);
    source.pairs[1] = {QStringLiteral("être à l'heure"), QStringLiteral("pünktlich sein")};
    print();
    const int pages = layout.pageCount();
    EXPECT_EQ(info(QStringLiteral("Pages")).toInt(), pages);
    EXPECT_THAT(info(QStringLiteral("Page size")).toStdString(), ::testing::HasSubstr("(A4)"));
    int row = 0;
    for (int number = 1; number <= pages; ++number) {
        QStringList lines = page(number);
        ASSERT_GE(lines.size(), 3);
        EXPECT_EQ(lines.takeFirst(), QStringLiteral("Glosaria - Words"));
        EXPECT_EQ(lines.takeFirst(), QStringLiteral("English German"));
        EXPECT_EQ(lines.takeLast(), QString::number(number));
        for (const QString &line : lines) {
            const auto &[first, second] = source.pairs.at(size_t(row++));
            EXPECT_EQ(line, QStringLiteral("%1 %2 %3").arg(row).arg(first, second));
        }
    }
    EXPECT_EQ(row, 120);
}

TEST_F(PrintedPages, ARangeInTwoCopiesGivesThoseSheets)
{
    source.fill(5);
    layout.PrintLayout(modUtskrift::PreviewMode, source);
    while (layout.pageCount() < 5) {
        source.fill(source.Rows() + 20);
        layout.PrintLayout(modUtskrift::PreviewMode, source);
    }
    layout.FromPage = 3;
    layout.ToPage = 4;
    print(2);
    EXPECT_EQ(info(QStringLiteral("Pages")).toInt(), 4);
    for (int sheet = 1; sheet <= 4; ++sheet)
        EXPECT_EQ(page(sheet).last(), QString::number(sheet % 2 ? 3 : 4));
}

TEST_F(PrintedPages, WrappedWordsStayInTheirColumn)
{
    const QString phrase = QStringLiteral("to look forward to something that will happen before very long");
    source.pairs = {{phrase, QStringLiteral("sich freuen")}, {QStringLiteral("next"), {}}};
    print();
    QStringList lines = page(1).mid(2);
    lines.removeLast();
    ASSERT_GE(lines.size(), 3);
    EXPECT_TRUE(lines.first().startsWith(QStringLiteral("1 to look")));
    EXPECT_TRUE(lines.first().endsWith(QStringLiteral("sich freuen")));
    EXPECT_EQ(lines.last(), QStringLiteral("2 next"));
    lines.first().remove(QStringLiteral(" sich freuen"));
    lines.removeLast();
    EXPECT_EQ(lines.join(u' '), QStringLiteral("1 ") + phrase);
}

TEST_F(PrintedPages, LandscapeTurnsTheSheetAndTheColumns)
{
    printer.printer().setPageOrientation(QPageLayout::Landscape);
    printer.settle();
    source.fill(40);
    print();
    EXPECT_GT(printer.Width(), printer.Height());
    EXPECT_THAT(info(QStringLiteral("Page size")).toStdString(), ::testing::StartsWith("842 x 595"));
    EXPECT_EQ(layout.pageCount(), 2);
    EXPECT_EQ(page(2).last(), QStringLiteral("2"));
}

TEST_F(PrintedPages, WordsOfEveryScriptAreThere)
{
    source.pairs = {{QStringLiteral("слово"), QStringLiteral("λέξη")},
                    {QStringLiteral("שלום עולם"), QStringLiteral("مرحبا")},
                    {QStringLiteral("漢字"), QStringLiteral("คำ")}};
    print();
    const QString text = page(1).join(u'\n');
    for (const char *word : {"слово", "λέξη", "漢字"})
        EXPECT_TRUE(text.contains(QString::fromUtf8(word))) << text.toStdString();
}

TEST_F(PrintedPages, AFileThatCannotBeWrittenIsAPrinterError)
{
    source.fill(5);
    file = QStringLiteral("/no/such/folder/out.pdf");
    EXPECT_THROW(print(), PrinterError);
    file = folder.filePath(QStringLiteral("out.pdf"));
    EXPECT_NO_THROW(print()) << "the next run is not concerned";
}

#ifdef Q_OS_LINUX
TEST_F(PrintedPages, ADiskThatFillsUpIsAPrinterError)
{
    source.fill(50);
    file = QStringLiteral("/dev/full");
    EXPECT_THROW(print(), PrinterError);
}
#endif

} // namespace
