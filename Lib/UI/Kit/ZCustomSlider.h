#pragma once

#include <QPointer>
#include <QSlider>

/// A slider that can restrict the mouse wheel to when it has the focus, so that the wheel over a panel of sliders
/// scrolls the panel.
class ZCustomSlider : public QSlider
{
    Q_OBJECT
    Q_PROPERTY(bool editableInFocus READ isEditableInFocus WRITE setEditableInFocus)

public:
    explicit ZCustomSlider(QWidget* parent = nullptr);

    /// Whether the wheel changes the value in focus only; false by default. If true, a focused slider at either end
    /// accepts touch pad scrolling beyond that end, so that the panel does not start to scroll.
    bool isEditableInFocus() const { return editableInFocus; }
    void setEditableInFocus(bool on);

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    void installWheelFilter();
    void removeWheelFilter();

    bool editableInFocus = false;
    QPointer<QObject> wheelFilter; ///< a child; one out of use is kept until the slider is destroyed
};
