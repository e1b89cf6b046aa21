#include <UI/Common/MirroredStyle.h>

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QStyle>
#include <QVariant>
#include <QVector>
#include <QWidget>

namespace Zelkor::Vx::UI::Common {

namespace {

// A property of the application, since a process may contain the kit twice: in the widget library and in the program.
const char* const INSTALLED = "_vxFollowsLayoutDirection";

class DirectionFilter : public QObject
{
public:
    // Destroyed with an unloaded library. The other copy of the kit may then install its own filter.
    ~DirectionFilter() override
    {
        if (qApp)
            qApp->setProperty(INSTALLED, QVariant());
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::LayoutDirectionChange || !watched->isWidgetType())
            return false;
        auto* widget = static_cast<QWidget*>(watched);
        if (!widget->testAttribute(Qt::WA_WState_Polished) || !HasMirroredSheet(widget))
            return false;
        const QPointer<QObject> receiver = watched;
        Polish(widget);
        return !receiver; // a slot may have deleted it
    }

private:
    bool HasMirroredSheet(const QWidget* widget)
    {
        if (IsMirrored(qApp->styleSheet(), applicationSheet, isApplicationMirrored))
            return true;
        for (; widget; widget = widget->parentWidget()) {
            if (IsMirrored(widget->styleSheet(), widgetSheet, isWidgetMirrored))
                return true;
        }
        return false;
    }

    // Caches the answer: sheets are long, and most widgets share one.
    static bool IsMirrored(const QString& sheet, QString& known, bool& isMirrored)
    {
        if (sheet.isEmpty())
            return false;
        if (sheet.constData() != known.constData()) {
            known = sheet;
            isMirrored = sheet.contains(QLatin1String("[layoutDirection"));
        }
        return isMirrored;
    }

    void Polish(QWidget* widget)
    {
        // Rules that set the direction could alternate forever.
        if (polishing.contains(widget))
            return;
        polishing.append(widget);
        // As Qt does after a change of the sheet: polish() matches the rules again, the event resets cached sizes.
        widget->style()->polish(widget);
        QEvent change(QEvent::StyleChange);
        QCoreApplication::sendEvent(widget, &change);
        polishing.removeOne(widget);
    }

    QString applicationSheet;
    bool isApplicationMirrored = false;
    QString widgetSheet;
    bool isWidgetMirrored = false;
    QVector<const QWidget*> polishing;
};

} // namespace

void FollowLayoutDirection()
{
    static DirectionFilter filter;
    if (qApp->property(INSTALLED).toBool())
        return;
    qApp->setProperty(INSTALLED, true);
    qApp->installEventFilter(&filter);
}

} // namespace Zelkor::Vx::UI::Common
