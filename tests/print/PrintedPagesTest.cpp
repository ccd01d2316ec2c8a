#include "document/ctlGrid.h"
#include "print/GridSource.h"
#include "print/PaintedSurface.h"
#include "print/printer/PrintJob.h"
#include "print/printer/QtPrinter.h"
#include "print/rules/PrintRun.h"
#include "services/rules/ProgramFlags.h"
#include "support/RecordingPrinter.h"
#include "support/ScriptedPrintServer.h"

#include <QPageRanges>
#include <QPrintEngine>

namespace {

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString() << " is needed to read the printed pages back";
    return process.readAllStandardOutput();
}

/// A printer that keeps all it is told, as that of a queue does.
struct QueuePrinter : QPrinter
{
    struct Engine : QPrintEngine
    {
        QPrinter file{QPrinter::HighResolution};
        std::map<int, QVariant> kept;

        void setProperty(PrintEnginePropertyKey key, const QVariant &value) override
        {
            kept[key] = value;
            file.printEngine()->setProperty(key, value);
        }
        QVariant property(PrintEnginePropertyKey key) const override
        {
            return kept.count(key) ? kept.at(key) : file.printEngine()->property(key);
        }
        bool newPage() override { return file.newPage(); }
        bool abort() override { return file.abort(); }
        int metric(QPaintDevice::PaintDeviceMetric metric) const override { return file.printEngine()->metric(metric); }
        QPrinter::PrinterState printerState() const override { return file.printerState(); }
    } engine;

    QueuePrinter() { setEngines(&engine, engine.file.paintEngine()); }
};

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
    source.first[3] = "a \U0001F34Bb"; // a lemon
    source.second[3] = QStringLiteral("\U0001F34B עברית");
    for (int time = 0; time < 2; ++time)
        print(); // a font that was printed with is measured as before
    const QByteArray info = outputOf("pdfinfo", {file}).simplified();
    EXPECT_TRUE(info.contains("Pages: 3 ") && info.contains("(A4)")) << info.constData();
    const QString text = outputOf("pdftotext", {file, "-"});
    for (size_t row = 0; row < source.first.size(); ++row)
        EXPECT_TRUE(row == 3 || (text.contains(source.first[row]) && text.contains(source.second[row]))) << row;
    const QByteArray fonts = outputOf("pdffonts", {file});
    EXPECT_TRUE(fonts.contains("LiberationSans ") && fonts.contains("LiberationSans-Bold ")) << fonts.constData();
    const QImage page = QImage::fromData(outputOf("pdftoppm", {"-r", "72", "-singlefile", file}));
    std::array<QRect, 2> lemons; // of the two columns
    int red = 0;                 // in the first row
    for (int i = 0; i < page.width() * page.height(); ++i) {
        const QPoint at(i % page.width(), i / page.width());
        const QColor point = page.pixelColor(at);
        if (point.green() > point.blue() + 60)
            lemons[at.x() > 330] |= QRect(at, at);
        red += at.y() / 20 == 5 && point.red() > point.green() + 99;
    }
    for (const int left : {94, 534}) {
        const QRect lemon = lemons[left == 534];
        EXPECT_TRUE(QRect(left, 131, 15, 13).contains(lemon) && lemon.width() > 7 && lemon.height() > 6) << left;
    }
    const QRegularExpression afterLemon(R"(xMin="([^"]+)[^>]*>b<)");
    EXPECT_NEAR(afterLemon.match(outputOf("pdftotext", {"-bbox", file, "-"})).captured(1).toDouble(), 107, 3);
    EXPECT_EQ(outputOf("pdfimages", {"-list", file}).count(" smask "), 2) << "only lemons are pictures";
    EXPECT_GT(red, 20);
}

TEST_F(PrintedPages, AFileThatCannotBeWrittenIsAPrinterErrorAndACancelledRunLeavesNone)
{
    source = sourceOf(5);
    const QString full = folder.filePath("full.pdf"); // a link, so that no fault removes the device itself
    ASSERT_TRUE(QFile::link("/dev/full", full));
    for (const QString &path : {QString("/no/such/folder/out.pdf"), full}) {
        file = path;
        EXPECT_EQ(printerFault([this] { print(); }), "The file '" + path + "' can't be written.");
    }
    EXPECT_TRUE(QFileInfo(full).isSymLink()) << "no more than files is ever removed";
    file = folder.filePath("out.pdf");
    EXPECT_NO_THROW(print()) << "the next run is not concerned";
    EXPECT_TRUE(QFile::exists(file));
    PrintRun(source, printer, {}).printSheet(); // cancelled
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(PrintedPages, AQueueIsSentWholeJobsOnly)
{
    printer.setDocName("Words");
    printer.setUp({{}, QPageSize(QPageSize::A5), QPageLayout::Landscape, QPrinter::DuplexNone});
    printer.printer().setColorMode(QPrinter::GrayScale);
    const auto draw = [this](const std::function<void(PrintJob &)> &last) {
        PrintJob job(printer.printer(), "office", server);
        job.surface().setFont({"Liberation Sans", 10});
        job.surface().setForeColor(qRgb(255, 0, 0));
        job.surface().drawText(1440, 2880, "words", false);
        job.newPage();
        last(job);
    };
    draw([](PrintJob &) {}); // cancelled
    EXPECT_EQ(server.queue, "");
    draw([](PrintJob &job) { job.end(); });
    EXPECT_EQ(server.queue + server.title, "officeWords");
    writeFile(file, server.file);
    const QStringList told = QString(outputOf("pdftotext", {"-bbox", file, "-"})).split('\n');
    EXPECT_EQ(told.filter(QRegularExpression("title|Creator|page |word ")).join(QString()).toStdString(),
              "<title>Words</title><meta name=\"Creator\" content=\"Glosaria\"/>  <page width=\"595.000000\" "
              "height=\"420.000000\">    <word xMin=\"72.000000\" yMin=\"144.000391\" xMax=\"98.672656\" "
              "yMax=\"155.172266\">words</word>  <page width=\"595.000000\" height=\"420.000000\">");
    EXPECT_TRUE(QImage::fromData(outputOf("pdftoppm", {"-singlefile", file})).allGray());
    server.refusal = "no jobs today";
    EXPECT_EQ(printerFault([&draw] { draw([](PrintJob &job) { job.end(); }); }),
              "The printer 'office' does not accept the document: no jobs today");
}

TEST_F(PrintedPages, APrinterKeepsWhatItIsSetUpWithAndTellsItToItsQueue)
{
    std::ostringstream seen;
    for (int n = 0; n < 8; ++n) {
        auto chosen = std::make_unique<QueuePrinter>();
        const char *const options[] = {"page-set odd number-up 2 page-ranges 1-2", "number-up 2 page-set even a 1",
                                       "a 1 page-set"};
        chosen->engine.setProperty(QPrintEngine::PrintEnginePropertyKey(0xfe00), QString(options[n % 3]).split(' '));
        chosen->setDuplex(QPrinter::DuplexMode(n % 4));
        chosen->setPageOrientation(QPageLayout::Orientation(n > 3));
        chosen->setPageOrder(QPrinter::PageOrder(n > 5));
        chosen->setPrintRange(n & 1 ? QPrinter::PageRange : QPrinter::AllPages);
        chosen->setPageRanges(QPageRanges::fromString(n > 1 ? "1-4,6" : ""));
        chosen->setCopyCount(3);
        printer.adopt(std::move(chosen));
        for (int page = 1; page < 7; ++page)
            seen << (printer.wantsPage(page) ? std::to_string(page) : "");
        seen << ", short edge " << printer.turnsOverShortEdge() << ", last first " << printer.lastPageFirst()
             << ", duplex " << printer.setup().duplex << ", copies " << printer.printer().copyCount() << ", dots "
             << printer.printer().resolution();
        PrintJob(printer.printer(), "office", server).end();
        for (const auto &[name, value] : server.options)
            seen << ", " << name.constData() << ' ' << value.constData();
        seen << '\n';
    }
    EXPECT_EQ(seen.str(), drawnAs("print_jobs"));
}

TEST_F(PrintedPages, TheNextDocumentsFileIsProposedBesideTheLast)
{
    printer.setDocName("First");
    EXPECT_EQ(printer.printer().outputFileName(), "");
    printer.printer().setOutputFileName(file);
    printer.setDocName("First");
    EXPECT_EQ(printer.printer().outputFileName(), file);
    printer.setDocName("Second");
    printer.printer().setColorMode(QPrinter::GrayScale);
    printer.setUp({{}, QPageSize(QPageSize::A5), QPageLayout::Landscape, QPrinter::DuplexNone});
    const std::unique_ptr<QPrinter> copy = printer.copy();
    EXPECT_EQ(QStringList({copy->docName(), copy->creator(), copy->outputFileName(), printer.setup().paper.name()}),
              QStringList({"Second", "Glosaria", folder.filePath("Second.pdf"), "A5"}));
    EXPECT_TRUE(copy->colorMode() == QPrinter::GrayScale && copy->fullPage() && copy->pageLayout().margins().isNull());
    EXPECT_TRUE(copy->pageLayout() == printer.printer().pageLayout() && printer.setup().orientation);
    const auto measure = printer.measure({"Liberation Sans", 10});
    EXPECT_EQ((QList<int>{copy->width(), printer.Width(), printer.Height(), printer.ScaleHeight(),
                          measure->TextHeight(), measure->TextWidth("one e\u0301")}),
              (QList<int>{11900, 11900, 8400, 8400, 223, 500}));
}

TEST(PaintedText, StandsBelowItsPlaceAndBeforeItWhenItGoesFromRightToLeft)
{
    const auto drawn = [](const QString &text, bool rightToLeft, bool italic) {
        QImage page(4000, 600, QImage::Format_RGB32);
        page.fill(Qt::white);
        QPainter painter(&page);
        PaintedSurface surface(painter);
        surface.setForeColor(Qt::black);
        surface.setFont({"Liberation Sans", 10, false, italic});
        text.isEmpty() ? surface.drawLine(1000, 100, 1400, 100) : surface.drawText(3000, 100, text, rightToLeft);
        return inkOf(page, Qt::white);
    };
    const QRect left = drawn("Hl.", false, false), right = drawn("Hl.", true, false), line = drawn("", false, false);
    EXPECT_TRUE(left.top() > 130 && left.bottom() < 300 && left.height() > 130) << "ten points are 200 twips";
    EXPECT_TRUE(right.right() <= 3000 && right.right() > 2960) << right.right();
    EXPECT_EQ(right.size(), drawn(".Hl", false, false).size()) << "the full stop stands at the left";
    EXPECT_NE(drawn("Hl.", false, true), left);
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
    EXPECT_EQ(std::tuple(source.Caption, source.ForeColor, source.first, source.second),
              std::tuple(QString("Words"), 0xFF, std::vector<QString>{"a", "c"}, std::vector<QString>{"b", "d"}));
}

} // namespace
