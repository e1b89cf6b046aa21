#pragma once

#include <QSpinBox>

/// A spin box that can restrict the mouse wheel to when it has the focus, so that the wheel over a panel of spin boxes
/// scrolls the panel.
class ZSpinBox : public QSpinBox
{
    Q_OBJECT
    Q_PROPERTY(bool editableInFocus READ isEditableInFocus WRITE setEditableInFocus)

public:
    explicit ZSpinBox(QWidget* parent = nullptr);

    /// Whether the wheel changes the value in focus only; false by default. If true, the wheel does not give the focus
    /// either, unless a focus policy set later includes it.
    bool isEditableInFocus() const { return editableInFocus; }
    void setEditableInFocus(bool on);

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    bool editableInFocus = false;
};
