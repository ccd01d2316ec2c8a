#include "document/ctlGrid.h"
#include "print/GridSource.h"
#include "print/PaintedSurface.h"
#include "print/printer/PrintJob.h"
#include "print/printer/QtPrinter.h"
#include "print/rules/PrintRun.h"
#include "services/rules/ProgramFlags.h"
#include "support/RecordingPrinter.h"
#include "support/ScriptedPrintServer.h"

namespace {

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString() << " is needed to read the printed pages back";
    return process.readAllStandardOutput();
}

/// Vocabularies printed to PDF files and read back.
struct PrintedPages : ::testing::Test
{
    QTemporaryDir folder;
    ScriptedPrintServer server;
    QtPrinter printer{server};
    PrintSource source;
    QString file = folder.filePath("out.pdf");

    void print()
    {
        printer.printer().setOutputFileName(file);
        PrintRun run(source, printer, {});
        while (!run.finished())
            run.printSheet();
        run.end();
    }
};

TEST_F(PrintedPages, HoldWordsOfEveryScriptOnSheetsOfA4)
{
    source = sourceOf(120);
    source.ForeColor = 0x0000ff; // red
    std::tie(source.first[2], source.second[2]) = std::pair("слово", "λέξη");
    std::tie(source.first[120], source.second[120]) = std::pair("漢字", "שלום");
    source.first[3] = "a \U0001F34B"; // a lemon
    print();
    const QByteArray info = outputOf("pdfinfo", {file}).simplified();
    EXPECT_TRUE(info.contains("Pages: 3 ") && info.contains("(A4)")) << info.constData();
    const QString text = outputOf("pdftotext", {file, "-"});
    for (size_t row = 0; row < source.first.size(); ++row)
        EXPECT_TRUE((row == 3 || text.contains(source.first[row])) && text.contains(source.second[row]))
            << text.toStdString();
    const QByteArray fonts = outputOf("pdffonts", {file});
    EXPECT_TRUE(fonts.contains("LiberationSans ") && fonts.contains("LiberationSans-Bold ")) << fonts.constData();
    const QImage page = QImage::fromData(outputOf("pdftoppm", {"-r", "72", "-singlefile", file}));
    QRect lemon;
    int red = 0; // in the first row
    for (int i = 0; i < page.width() * page.height(); ++i) {
        const QPoint at(i % page.width(), i / page.width());
        const QColor point = page.pixelColor(at);
        if (point.green() > point.blue() + 60)
            lemon |= QRect(at, at);
        red += at.y() / 20 == 5 && point.red() > point.green() + 99;
    }
    EXPECT_TRUE(QRect(94, 131, 15, 13).contains(lemon) && lemon.width() > 7 && lemon.height() > 6)
        << lemon.left() << ' ' << lemon.top() << ' ' << lemon.width() << ' ' << lemon.height();
    EXPECT_GT(red, 20);
}

TEST_F(PrintedPages, AFileThatCannotBeWrittenIsAPrinterError)
{
    source = sourceOf(5);
    const QString full = folder.filePath("full.pdf"); // a link, so that no fault removes the device itself
    ASSERT_TRUE(QFile::link("/dev/full", full));
    for (const QString &path : {QString("/no/such/folder/out.pdf"), full}) {
        file = path;
        try {
            print();
            ADD_FAILURE() << path.toStdString();
        } catch (const PrinterError &error) {
            EXPECT_TRUE(error.text().contains(path)) << error.text().toStdString();
        }
    }
    file = folder.filePath("out.pdf");
    EXPECT_NO_THROW(print()) << "the next run is not concerned";
}

TEST_F(PrintedPages, AQueueIsSentWholeJobsOnly)
{
    printer.printer().setPageOrientation(QPageLayout::Landscape);
    const auto draw = [this](const std::function<void(PrintJob &)> &last) {
        PrintJob job(printer.printer(), "office", server);
        job.surface().drawText(100, 100, "words", false);
        job.newPage();
        last(job);
    };
    draw([](PrintJob &) {}); // cancelled
    EXPECT_EQ(server.queue, "");
    draw([](PrintJob &job) { job.end(); });
    EXPECT_EQ(server.queue, "office");
    EXPECT_TRUE(server.file.contains("/Count 2")) << "both pages";
    EXPECT_EQ(server.options, (PrintServer::Options{{"media", "A4"}, {"sides", "one-sided"}, {"landscape", "true"}}));
    server.refusal = "no jobs today";
    EXPECT_THROW(draw([](PrintJob &job) { job.end(); }), PrinterError);
}

TEST_F(PrintedPages, TheNextDocumentsFileIsProposedBesideTheLast)
{
    printer.setDocName("First");
    EXPECT_EQ(printer.printer().outputFileName(), "");
    printer.printer().setOutputFileName(file);
    printer.setDocName("First");
    EXPECT_EQ(printer.printer().outputFileName(), file);
    printer.setDocName("Second");
    EXPECT_EQ(printer.printer().outputFileName(), folder.filePath("Second.pdf"));
    printer.printer().setColorMode(QPrinter::GrayScale);
    const std::unique_ptr<QPrinter> copy = printer.copy();
    EXPECT_EQ(QStringList({copy->docName(), copy->creator(), copy->outputFileName()}),
              QStringList({"Second", "Glosaria", folder.filePath("Second.pdf")}));
    EXPECT_TRUE(printer.writesFile() && copy->colorMode() == QPrinter::GrayScale && copy->fullPage());
    EXPECT_TRUE(printer.printer().pageLayout().margins().isNull() && printer.printer().fullPage());
    EXPECT_FALSE(printer.turnsOverShortEdge() || printer.lastPageFirst());
}

TEST(PaintedText, StandsBelowItsPlaceAndBeforeItWhenItGoesFromRightToLeft)
{
    const auto drawn = [](int x, const QString &text, bool rightToLeft, bool bold = false, bool italic = false) {
        QImage page(4000, 600, QImage::Format_RGB32);
        page.fill(Qt::white);
        QPainter painter(&page);
        PaintedSurface surface(painter);
        surface.setFont({"Liberation Sans", 10, bold, italic});
        surface.setForeColor(qRgb(0, 0, 255));
        text.isEmpty() ? surface.drawLine(x, 100, 1400, 100) : surface.drawText(x, 100, text, rightToLeft);
        return inkOf(page, Qt::white);
    };
    const QRect left = drawn(1000, "Hl.", false), right = drawn(3000, "Hl.", true), line = drawn(1000, "", false);
    EXPECT_TRUE(left.left() >= 1000 && left.left() < 1040) << left.left();
    EXPECT_TRUE(left.top() > 130 && left.bottom() < 300 && left.height() > 130) << "ten points are 200 twips";
    EXPECT_TRUE(right.right() <= 3000 && right.right() > 2960) << right.right();
    EXPECT_EQ(right.size(), drawn(1000, ".Hl", false).size()) << "the full stop stands at the left";
    EXPECT_TRUE(drawn(1000, "Hl.", false, true).width() > left.width());
    EXPECT_NE(drawn(1000, "Hl.", false, false, true), left);
    EXPECT_TRUE(std::abs(line.width() - 400) <= 20 && std::abs(line.height() - 10) <= 1);
}

TEST(GridSource, TakesRowsFontAndColourOfTheDocument)
{
    ProgramFlags flags;
    ctlGrid grid(&flags);
    grid.loadProperties(ctlGrid::documentDesign());
    grid.setGridFont(QFont("Liberation Serif", 12, QFont::Bold));
    grid.setForeColor(0xFF);
    grid.setWords({"a", "c"}, {"b", "d"}, {});
    const PrintSource source = GridSource::read(grid, "Words");
    EXPECT_EQ(source.Font, (PrintFont{"Liberation Serif", 12, true, false}));
    EXPECT_TRUE(source.Caption == "Words" && source.ForeColor == 0xFF);
    EXPECT_EQ(std::pair(source.first, source.second),
              std::pair(std::vector<QString>{"a", "c"}, std::vector<QString>{"b", "d"}));
}

TEST_F(PrintedPages, ARunThatIsCancelledLeavesNoFile)
{
    source = sourceOf(120);
    printer.printer().setOutputFileName(file);
    {
        PrintRun run(source, printer, {});
        run.printSheet();
        EXPECT_TRUE(QFile::exists(file));
    }
    EXPECT_FALSE(QFile::exists(file));
}

} // namespace
