#pragma once

#include <QPointer>
#include <QString>
#include <QVector>
#include <QWidget>

namespace Zelkor::Vx::UI::Kit {

/// The application or widget whose style sheet is edited. Saves the original sheets. The widget may be destroyed at any
/// time. GUI thread only.
class StyleSheetTarget
{
public:
    /// Null selects the application, which is the default.
    void set(QWidget* widget);

    bool isApplication() const { return application; }

    /// Returns null for the application and for a destroyed widget.
    QWidget* widget() const { return chosen; }

    /// Returns false after the widget was destroyed.
    bool exists() const { return application || chosen; }

    QString sheet() const;

    /// Sets the sheet of an existing target.
    void apply(const QString& sheet);

    /// Restores the sheet before the first apply() since the last revert() of this target. Returns false if nothing was
    /// applied.
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
