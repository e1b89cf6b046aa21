#include "SpeedTable.h"

#include <UI/Widgets/ButtonWithPopUpContainer.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMenu>
#include <QProcess>
#include <QToolButton>
#include <QWidgetAction>

using Zelkor::Vx::UI::ButtonWithPopUpContainer;

namespace SpeedTable {

namespace {

constexpr int CHOICES = 12;
constexpr int OPENINGS = 61;
constexpr int STARTS = 15;
constexpr int LONGEST_WAIT_MS = 5000;
constexpr double NANOSECOND = 1e-9;

QWidget* MakeChoice(int number)
{
    auto* button = new QToolButton;
    button->setText(QStringLiteral("Choice %1").arg(number));
    return button;
}

/// Records whether a widget was painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget* widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        painted = painted || event->type() == QEvent::Paint;
        return false;
    }

    bool painted = false;
};

// Returns the seconds from the click until the last item of the list is painted.
double TimeToPaint(QToolButton& button, QWidget* lastChoice)
{
    button.show();
    QCoreApplication::processEvents();
    PaintWatch watch(lastChoice);
    QElapsedTimer timer;
    timer.start();
    button.click();
    while (!watch.painted) {
        QCoreApplication::processEvents();
        if (timer.hasExpired(LONGEST_WAIT_MS))
            qFatal("the pop-up was not painted");
    }
    return double(timer.nsecsElapsed()) * NANOSECOND;
}

// Opens each list for the first time only: later the window may be painted already.
double OpenPanel()
{
    ButtonWithPopUpContainer button;
    for (int i = 0; i < CHOICES; ++i)
        button.AppendWidget(MakeChoice(i));
    return TimeToPaint(button, button.GetWidget(CHOICES - 1));
}

double OpenMenu()
{
    QToolButton button;
    QMenu menu;
    QWidget* choice = nullptr;
    for (int i = 0; i < CHOICES; ++i) {
        auto* action = new QWidgetAction(&menu);
        choice = MakeChoice(i);
        action->setDefaultWidget(choice);
        menu.addAction(action);
    }
    QObject::connect(&button, &QToolButton::clicked, &menu,
                     [&] { menu.popup(button.mapToGlobal(button.rect().bottomLeft())); });
    return TimeToPaint(button, choice);
}

Rounds OpenPopUp()
{
    OpenPanel();
    OpenMenu();
    Rounds rounds;
    for (int i = 0; i < OPENINGS; ++i) {
        rounds.path.push_back(OpenPanel());
        rounds.rival.push_back(OpenMenu());
    }
    return rounds;
}

// Returns the output of a program in the same folder. Exits when that program fails, because the number would be wrong.
QByteArray RunHelper(const QString& name, const QStringList& arguments)
{
    QProcess process;
    process.start(QCoreApplication::applicationDirPath() + '/' + name, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        qFatal("%s failed: %s", qPrintable(name), process.readAllStandardError().constData());
    return process.readAllStandardOutput();
}

Rounds Start()
{
    const QString bases = RunHelper(QStringLiteral("VxStartWidgets"), {QStringLiteral("--bases")});
    const QStringList classNames = bases.split('\n', Qt::SkipEmptyParts);
    return Interleave([] { RunHelper(QStringLiteral("VxStartWidgets"), {}); },
                      [&] { RunHelper(QStringLiteral("VxStartBases"), classNames); }, STARTS, 1);
}

} // namespace

std::vector<Row> StartRows()
{
    return {
        {"pop-up", "pop-up panel of 12 buttons, click to first paint", "QMenu with the same buttons", 1.0, OpenPopUp},
        {"start", "a program that constructs each exported class once", "one that constructs each Qt base class once",
         1.5, Start},
    };
}

} // namespace SpeedTable
