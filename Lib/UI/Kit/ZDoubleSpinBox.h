#pragma once

#include <QDoubleSpinBox>

/// A field for a floating-point number that can keep what is typed to whole steps, and can be told to take the mouse
/// wheel only while it has the focus.
class ZDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT
    Q_PROPERTY(bool fixupWithStep READ isFixupWithStep WRITE setFixupWithStep)
    Q_PROPERTY(bool editableInFocus READ isEditableInFocus WRITE setEditableInFocus)

public:
    explicit ZDoubleSpinBox(QWidget* parent = nullptr);

    /// Whether a number that a person typed is rounded when the editing is finished, by Enter or by leaving the field:
    /// to the nearest whole number of `singleStep` above the minimum that lies within the range. Off by default.
    ///
    /// The value is rounded before `editingFinished` comes. Values of code, arrows and the wheel stay as they are, and
    /// so does a field that is left without typing. With `keyboardTracking`, `valueChanged` tells each number on the
    /// way and the rounded one last; without, the rounded one alone. A number typed below the minimum becomes the
    /// minimum. Nothing is rounded with a step of 0, or when a double cannot count the steps from the minimum.
    bool isFixupWithStep() const { return fixupWithStep; }
    void setFixupWithStep(bool on);

    /// Whether the wheel changes the value only in focus; off by default. When on, the wheel does not give the focus
    /// either, unless a focus policy set later has it so.
    bool isEditableInFocus() const { return editableInFocus; }
    void setEditableInFocus(bool on);

    /// With `fixupWithStep`, makes a number that is not acceptable the nearest one that is. A text that is no number
    /// stays; the field then goes back as its `correctionMode` has it.
    void fixup(QString& text) const override;

    /// Rounds what was typed, with `fixupWithStep` and without `keyboardTracking`.
    double valueFromText(const QString& text) const override;

    void stepBy(int steps) override;

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    double roundedToStep(double number) const;
    void finishTyping();

    bool fixupWithStep = false;
    bool editableInFocus = false;
    QString typedText; ///< the latest since the end of editing, prefix and suffix included; empty after a step
};
