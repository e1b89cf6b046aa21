#pragma once

#include "Palette.h"

#include <QDialog>
#include <QTemporaryDir>
#include <QTimer>

class QFileDialog;
class QLabel;
class QPushButton;
class QScrollArea;
class ZComboBox;

namespace Zelkor::Examples {
class Appearance;
}

namespace Zelkor::Gallery {

/// A window with the colours of the current style, which applies the style sheet in these colours after each change.
/// `appearance` must outlive it. The fields have the names of their colours as object names.
class PaletteEditor : public QDialog
{
    Q_OBJECT

public:
    explicit PaletteEditor(Examples::Appearance* appearance, QWidget* parent = nullptr);

    /// Edits another palette, which is applied with the first change.
    void SetPalette(const Palette& newPalette);

    /// Reads or writes a palette file, which the build of a style sheet takes. Returns false and shows a message on
    /// errors.
    bool Load(const QString& file);
    bool Save(const QString& file);

    /// Asks the user whether to discard colours that were not saved, if any. Returns false to keep them.
    bool ConfirmDiscard();

protected:
    void changeEvent(QEvent* event) override;

private:
    void AddColor(const QString& name, int row);
    void Apply();
    void ShowStyle();
    void OpenDialog(QFileDialog* dialog);
    void Retranslate();

    Examples::Appearance* appearance;
    Palette palette;
    QTemporaryDir folder; ///< of the style sheet
    int generation = 0;   ///< Qt caches icons by their path, so that each sheet needs another one
    bool isModified = false;
    int shownBase = 0;  ///< index of the palette that the user started from
    QString shownStyle; ///< the palette or style sheet whose colours the fields show
    QTimer applyTimer;
    ZComboBox* base;
    QScrollArea* area;
    QLabel* message;
    QPushButton* openButton;
    QPushButton* saveButton;
};

} // namespace Zelkor::Gallery
