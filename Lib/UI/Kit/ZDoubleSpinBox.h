#pragma once

#include <QDoubleSpinBox>

/// A spin box for floating-point numbers that can round typed numbers to whole steps and restrict the mouse wheel to
/// when it has the focus.
class ZDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT
    Q_PROPERTY(bool fixupWithStep READ isFixupWithStep WRITE setFixupWithStep)
    Q_PROPERTY(bool editableInFocus READ isEditableInFocus WRITE setEditableInFocus)

public:
    explicit ZDoubleSpinBox(QWidget* parent = nullptr);

    /// Whether a typed number is rounded when editing finishes: to the nearest value in the range that is a whole
    /// number of `singleStep` above the minimum. False by default.
    ///
    /// The value is rounded before `editingFinished`. Values set by code, arrows or the wheel are not rounded, nor is a
    /// field that loses the focus without typing. With `keyboardTracking`, `valueChanged` reports every typed number
    /// and then the rounded one; without, only the latter. A number below the minimum becomes the minimum. Does nothing
    /// if the step is 0 or too small to count the steps in a double.
    bool isFixupWithStep() const { return fixupWithStep; }
    void setFixupWithStep(bool on);

    /// Whether the wheel changes the value in focus only; false by default. If true, the wheel does not give the focus
    /// either, unless a focus policy set later includes it.
    bool isEditableInFocus() const { return editableInFocus; }
    void setEditableInFocus(bool on);

    /// With `fixupWithStep`, replaces a number that is not acceptable by the nearest one that is. Other texts are left
    /// to `correctionMode`.
    void fixup(QString& text) const override;

    /// Rounds typed text with `fixupWithStep` and without `keyboardTracking`.
    double valueFromText(const QString& text) const override;

    void stepBy(int steps) override;

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    double roundedToStep(double number) const;
    void finishTyping();

    bool fixupWithStep = false;
    bool editableInFocus = false;
    QString typedText; ///< last typed text with prefix and suffix; empty after editing finished or a step
};
