#include <Catalogue/Catalogue.h>
#include <Examples/Support/BuiltInStyleSheets.h>
#include <UI/Widgets/HorizontalTabBar.h>

#include <Support/TestCase.h>

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>

using namespace Zelkor::Catalogue;
using Zelkor::Examples::LoadStyleSheet;

namespace {

QString ReadText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QMap<QString, QColor> ReadPalette(const QString& name)
{
    QMap<QString, QColor> palette;
    for (const QString& line : ReadText(QString(VX_STYLES_SOURCE "/%1.palette").arg(name)).split('\n')) {
        const QStringList parts = line.split(" = ");
        if (parts.size() == 2 && !line.startsWith("//"))
            palette.insert(parts[0], QColor(parts[1]));
    }
    return palette;
}

double Luminance(const QColor& color)
{
    const auto linear = [](double x) { return x <= 0.04045 ? x / 12.92 : std::pow((x + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(const QColor& a, const QColor& b)
{
    const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

class tst_Styles : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("dark") << "Dark";
        QTest::newRow("light") << "Light";
    }

    void textIsReadable_data()
    {
        QTest::addColumn<QString>("front");
        QTest::addColumn<QStringList>("backs");
        QTest::addColumn<double>("smallest");
        const QStringList plain = {"window", "surface", "raised"};
        const QStringList areas = plain + QStringList{"control", "control-hover"};
        QTest::newRow("text") << "text" << areas + QStringList{"control-pressed", "selection", "preview"} << 4.5;
        QTest::newRow("muted text") << "text-muted" << plain << 4.5;
        QTest::newRow("accent as text") << "accent-line" << plain << 4.5;
        QTest::newRow("on accent") << "on-accent" << QStringList{"accent", "accent-hover", "accent-pressed"} << 4.5;
        QTest::newRow("on danger") << "on-accent" << QStringList{"danger", "danger-pressed"} << 4.5;
        QTest::newRow("error") << "danger-text" << QStringList{"danger-surface"} << 4.5;
        QTest::newRow("keyboard focus") << "accent-line" << areas << 3.0;
        QTest::newRow("edge of fields") << "border-strong" << plain << 3.0;
        QTest::newRow("recording") << "recording" << QStringList{"window", "surface"} << 3.0;
    }

    void textIsReadable()
    {
        QFETCH_GLOBAL(QString, name);
        QFETCH(QString, front);
        QFETCH(QStringList, backs);
        QFETCH(double, smallest);
        const auto palette = ReadPalette(name);
        for (const QString& back : backs) {
            QVERIFY2(palette.contains(front) && palette.contains(back), qPrintable(front + " on " + back));
            const double contrast = Contrast(palette[front], palette[back]);
            QVERIFY2(contrast >= smallest, qPrintable(QString("%1 on %2: %3").arg(front, back).arg(contrast)));
        }
    }

    void iconsNeverComeFromTheCurrentFolder()
    {
        QTemporaryDir folder;
        const QString previous = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder.path()));
        QImage red(16, 16, QImage::Format_RGB32);
        red.fill(Qt::red);
        QVERIFY(red.save("vxstyle:mark.svg", "PNG"));
        QVERIFY(QImage("vxstyle:mark.svg") == red);

        QFETCH_GLOBAL(QString, name);
        ZStyleSheet sheet = *LoadStyleSheet(name.toLower());
        sheet.text += "\nQLabel { background-image: url(vxstyle:mark.svg); }";
        sheet.apply();
        QLabel label;
        label.resize(16, 16);
        // Qt says for each attempt that there is no such icon.
        for (const char* icon : {"mark.svg", "mark.svg", "mark.svg", "mark.svg", "mark.svg", "mark-dis", "mark-dis"})
            ExpectWarning(icon);
        QVERIFY(label.grab().toImage().pixelColor(8, 8) != Qt::red);
        // Qt prefers the icons for dense screens, and the sheet may lack some.
        QVERIFY(!qApp->styleSheet().contains("vxstyle:"));
        QVERIFY(ZStyleSheet::icon("mark").pixmap(16).isNull());
        QVERIFY(QDir::setCurrent(previous));
    }

    void disabledTabLooksDisabled()
    {
        QFETCH_GLOBAL(QString, name);
        LoadStyleSheet(name.toLower())->apply();
        Zelkor::Vx::HorizontalTabBar bar(nullptr);
        bar.addTab("l");
        bar.addTab("l");
        bar.show();
        const auto inside = [&] { return bar.grab(bar.tabRect(1).adjusted(4, 4, -4, -4)).toImage(); };
        const QImage enabled = inside();
        bar.setTabEnabled(1, false);
        const QImage disabled = inside();
        int changed = 0;
        for (int i = 0; i < enabled.width() * enabled.height(); ++i) {
            const QPoint pixel(i % enabled.width(), i / enabled.width());
            changed += enabled.pixel(pixel) != disabled.pixel(pixel);
        }
        QVERIFY(changed > enabled.width() * enabled.height() / 10);
    }

    void sheetIsWhole()
    {
        QFETCH_GLOBAL(QString, name);
        QString error;
        const auto sheet = LoadStyleSheet(name.toLower());
        QVERIFY2(sheet, qPrintable(error));
        static const QRegularExpression PLACEHOLDER("@[a-z-]+@");
        QVERIFY(!sheet->text.contains(PLACEHOLDER));

        QStringList urls = sheet->text.split("url(").mid(1);
        QVERIFY(!urls.isEmpty());
        for (const Entry& entry : Entries()) {
            QVERIFY2(sheet->text.contains("/* ==== " + entry.styleSection + " ="), qPrintable(entry.className));
            urls.append("vxstyle:" + entry.icon + ".svg");
        }
        // A mistake in the sheet would be a warning, which fails the test.
        sheet->apply();
        QCOMPARE(qApp->styleSheet(), sheet->text);
        QWidget().ensurePolished();
        for (const QString& url : urls) {
            const QString icon = url.section(')', 0, 0);
            QVERIFY2(icon.startsWith("vxstyle:") && !QImage(icon).isNull(), qPrintable(icon));
            QVERIFY2(!ReadText(icon).contains(PLACEHOLDER), qPrintable(icon));
        }

        // A colour that is missing leaves a placeholder; what is left is one that has no use.
        QString templates = ReadText(VX_STYLES_SOURCE "/Template.qss.in");
        for (const QFileInfo& icon : QDir(VX_STYLES_SOURCE "/icons").entryInfoList({"*.svg.in"}))
            templates += ReadText(icon.filePath());
        for (const QString& colour : ReadPalette(name).keys())
            QVERIFY2(templates.contains("@" + colour + "@"), qPrintable(colour));
    }
};

VX_TEST_MAIN(tst_Styles)
#include "tst_Styles.moc"
