#include <UI/Kit/ZStyleSheet.h>

#include <Support/TestCase.h>

#include <QApplication>
#include <QDir>
#include <QPointer>
#include <QSettings>
#include <QStyle>
#include <QTemporaryDir>
#include <QWidget>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformtheme.h>
#include <qpa/qwindowsysteminterface.h>

namespace {

class ThemeStub : public QPlatformTheme
{
public:
    ThemeStub() { QGuiApplicationPrivate::platform_theme = this; }
    ~ThemeStub() override
    {
        QGuiApplicationPrivate::platform_theme = previous;
#if defined(Q_OS_WIN)
        registry.setValue("AppsUseLightTheme", previousSetting);
#endif
    }

    void SetColors(Qt::GlobalColor text, Qt::GlobalColor window)
    {
        colors = QPalette(window);
        colors.setColor(QPalette::WindowText, text);
#if defined(Q_OS_WIN)
        registry.setValue("AppsUseLightTheme", text == Qt::black ? 1 : 0);
#endif
        QWindowSystemInterface::handleThemeChange<QWindowSystemInterface::SynchronousDelivery>(nullptr);
    }

    const QPalette* palette(Palette type) const override
    {
        return type == SystemPalette ? &colors : nullptr;
    }
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    Qt::ColorScheme colorScheme() const override
    {
        return Qt::ColorScheme::Unknown;
    }
#endif

private:
    QPlatformTheme* const previous = QGuiApplicationPrivate::platform_theme;
    QPalette colors;
#if defined(Q_OS_WIN)
    QSettings registry{"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
                       QSettings::NativeFormat};
    const int previousSetting = registry.value("AppsUseLightTheme", 1).toInt();
#endif
};

} // namespace

class tst_ZStyleSheet : public Support::TestCase
{
    Q_OBJECT

    QTemporaryDir folder;

    /// Writes a sheet without rules and returns its file.
    QString WriteSheet(const QString& text)
    {
        QFile file(folder.filePath(QString::number(qHash(text)) + ".qss"));
        if (!file.open(QIODevice::WriteOnly) || file.write("/*" + text.toUtf8() + "*/") < 0)
            return QString();
        return file.fileName();
    }

private Q_SLOTS:
    void sheetFollowsTheSystemUntilAnotherIsApplied()
    {
        ThemeStub theme;
        theme.SetColors(Qt::white, Qt::black);
        QVERIFY(ZStyleSheet::followSystem(WriteSheet("light"), WriteSheet("dark")));
        QCOMPARE(qApp->styleSheet(), QString("/*dark*/"));
        theme.SetColors(Qt::black, Qt::white);
        QTRY_COMPARE(qApp->styleSheet(), QString("/*light*/"));
        // Colours of the application are not those of the system.
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::black);
        palette.setColor(QPalette::WindowText, Qt::white);
        QApplication::setPalette(palette);
        QApplication::processEvents();
        QCOMPARE(qApp->styleSheet(), QString("/*light*/"));
        theme.SetColors(Qt::white, Qt::black);
        QTRY_COMPARE(qApp->styleSheet(), QString("/*dark*/"));
        QVERIFY(ZStyleSheet::applyFile(WriteSheet("fixed")));
        theme.SetColors(Qt::black, Qt::white);
        QApplication::processEvents();
        QCOMPARE(qApp->styleSheet(), QString("/*fixed*/"));
    }

    void paletteIsThatOfTheSheet()
    {
        const auto write = [this](const QString& color) {
            return WriteSheet("*/ QPalette { qproperty-Link: " + color +
                              "; } QPalette:disabled { qproperty-Link: gray } /*");
        };
        ThemeStub theme;
        theme.SetColors(Qt::white, Qt::black);
        const QPalette standard = QApplication::style()->standardPalette();
        QVERIFY(ZStyleSheet::followSystem(write("#010203"), write("#f1f2f3")));
        QCOMPARE(QApplication::palette().color(QPalette::Link), QColor("#f1f2f3"));
        QCOMPARE(QApplication::palette().color(QPalette::Disabled, QPalette::Link), QColor("gray"));
        theme.SetColors(Qt::black, Qt::white);
        QTRY_COMPARE(QApplication::palette().color(QPalette::Link), QColor("#010203"));
        QVERIFY(ZStyleSheet::applyFile(WriteSheet("plain")));
        QCOMPARE(QApplication::palette().color(QPalette::Link), standard.color(QPalette::Link));
    }

    void commentsAndUnknownColorsLeaveThePaletteAlone()
    {
        const QColor before = QApplication::style()->standardPalette().color(QPalette::Window);
        ExpectWarning("qproperty-Window: #12345 is neither");
        ZStyleSheet{"/* QPalette { qproperty-Window: red } */ QPalette { qproperty-Window: #12345 }", {}}.apply();
        QCOMPARE(QApplication::palette().color(QPalette::Window), before);
    }

    void applyingKeepsTheStyleInUse()
    {
        const QPointer<QStyle> style = QApplication::style();
        QVERIFY(ZStyleSheet::applyFile(WriteSheet("next")));
        QVERIFY(style);
    }

    void sheetAppliedWhileAnotherIsBeingAppliedWins()
    {
        struct Widget : QWidget
        {
            void changeEvent(QEvent* event) override
            {
                if (event->type() == QEvent::PaletteChange && !std::exchange(isDone, true))
                    ZStyleSheet{"/*inner*/", {}}.apply();
            }
            bool isDone = false;
        } widget;
        widget.ensurePolished();
        ZStyleSheet{"QPalette { qproperty-WindowText: #010203 }", {}}.apply();
        QVERIFY(widget.isDone);
        QCOMPARE(qApp->styleSheet(), QString("/*inner*/"));
    }

    void iconsAreNeverFilesOfTheCurrentFolder()
    {
        QFile file(folder.filePath("own.svg"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write("<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'/>") > 0);
        file.close();
        const QString previous = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder.path()));
        const ZStyleSheet sheet;
        sheet.apply();
        const bool isNull = ZStyleSheet::icon("own").pixmap(16).isNull() && sheet.ownIcon("own").isNull();
        QDir::setCurrent(previous);
        QVERIFY(isNull);
    }

    void unreadableSheetKeepsTheCurrentOne()
    {
        const QString sheet = WriteSheet("current");
        QVERIFY(ZStyleSheet::applyFile(sheet));
        for (const auto& files : {QStringList{sheet, "none"}, QStringList{"none", sheet}}) {
            QString error;
            QVERIFY(!ZStyleSheet::followSystem(files[0], files[1], &error));
            QVERIFY2(error.contains("none"), qPrintable(error));
        }
        QVERIFY(!ZStyleSheet::applyFile("none"));
        QCOMPARE(qApp->styleSheet(), QString("/*current*/"));
    }
};

VX_TEST_MAIN(tst_ZStyleSheet)
#include "tst_ZStyleSheet.moc"
