#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace Zelkor::Catalogue {
struct Entry;
}

namespace Zelkor::Designer {

/// One widget of the catalogue, as Qt Designer wants to know it. Refers to the entry. GUI thread only.
class FormWidget : public QDesignerCustomWidgetInterface
{
public:
    explicit FormWidget(const Catalogue::Entry& entry) : entry(entry) {}

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;

    /// Called by a form editor, and not where forms are loaded at run time.
    void initialize(QDesignerFormEditorInterface* editor) override;
    bool isInitialized() const override { return isInEditor; }

    QWidget* createWidget(QWidget* parent) override;
    QString domXml() const override;

private:
    const Catalogue::Entry& entry;
    bool isInEditor = false;
};

} // namespace Zelkor::Designer
