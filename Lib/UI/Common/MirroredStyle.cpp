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

// On the application, as the kit may be there twice: in the widget library and in a program that links it.
const char* const INSTALLED = "_vxFollowsLayoutDirection";

class DirectionFilter : public QObject
{
public:
    // With a library that is unloaded; the next one to come installs its own.
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
        return !receiver; // the style change may have led to its end
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

    // A sheet is long, and all widgets of a window ask about the same one.
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
        // Rules may set the direction themselves, and two of them could take turns without end.
        if (polishing.contains(widget))
            return;
        polishing.append(widget);
        // Like Qt after a change of the sheet: polishing matches the rules anew, and the event is for cached sizes.
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
