#pragma once

#include <QPointer>
#include <QString>
#include <QVector>
#include <QWidget>

namespace Zelkor::Vx::UI::Kit {

/// Who wears the style sheet that is edited: the application or one widget, which may go at any time. Remembers the
/// sheet that was there before. GUI thread.
class StyleSheetTarget
{
public:
    /// Null is the application, which a target is at first.
    void set(QWidget* widget);

    bool isApplication() const { return application; }

    /// Null for the application, and once the widget is gone.
    QWidget* widget() const { return chosen; }

    /// Whether the widget is not gone.
    bool exists() const { return application || chosen; }

    QString sheet() const;

    /// Sets the sheet of a target that exists.
    void apply(const QString& sheet);

    /// Sets the sheet that was there before the first one was applied since the last revert. Nothing, and false, when
    /// none was. Each target that was set has its own.
    bool revert();

private:
    struct Original
    {
        QPointer<QWidget> widget;
        bool ofApplication;
        QString sheet;
    };

    void setSheet(const QString& sheet);
    QVector<Original>::iterator findOriginal();

    QPointer<QWidget> chosen;
    bool application = true;
    QVector<Original> originals;
};

} // namespace Zelkor::Vx::UI::Kit
