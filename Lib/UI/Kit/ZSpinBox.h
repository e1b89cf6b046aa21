#pragma once

#include <QSpinBox>

/// A field for a whole number that can be told to take the mouse wheel only while it has the focus, so that a wheel
/// turned over a panel full of fields scrolls the panel and changes no value.
class ZSpinBox : public QSpinBox
{
    Q_OBJECT
    Q_PROPERTY(bool editableInFocus READ isEditableInFocus WRITE setEditableInFocus)

public:
    explicit ZSpinBox(QWidget* parent = nullptr);

    /// Whether the wheel changes the value only in focus; off by default. When on, the wheel does not give the focus
    /// either, unless a focus policy set later has it so.
    bool isEditableInFocus() const { return editableInFocus; }
    void setEditableInFocus(bool on);

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    bool editableInFocus = false;
};
