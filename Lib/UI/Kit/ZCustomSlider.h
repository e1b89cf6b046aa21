#pragma once

#include <QPointer>
#include <QSlider>

/// A slider that can be told to take the mouse wheel only while it has the focus, so that a wheel turned over a panel
/// full of sliders scrolls the panel and changes no value.
class ZCustomSlider : public QSlider
{
    Q_OBJECT
    Q_PROPERTY(bool editableInFocus READ isEditableInFocus WRITE setEditableInFocus)

public:
    explicit ZCustomSlider(QWidget* parent = nullptr);

    /// Whether the wheel changes the value only in focus; off by default. When on, a slider that stands at an end
    /// swallows the scrolling of a touch pad beyond that end: the panel does not run off under a person who pushes the
    /// slider against its end.
    bool isEditableInFocus() const { return editableInFocus; }
    void setEditableInFocus(bool on);

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    void installWheelFilter();
    void removeWheelFilter();

    bool editableInFocus = false;
    QPointer<QObject> wheelFilter; ///< a child; one that is out of use stays until the slider goes
};
