#pragma once

#include <QTextDocument>

namespace Tallymere {

// A report whose layout stands in a template file, which is a page of HTML. It is empty until one is loaded.
class ReportHolder final : public QTextDocument
{
    Q_OBJECT

public:
    using QTextDocument::QTextDocument;

    const QString &templateFile() const { return m_templateFile; }
    void setTemplateFile(const QString &fileName) { m_templateFile = fileName; }
    void setShowPrintDialog(bool show) { m_showPrintDialog = show; }

    void loadTemplate(); // throws RuleError when the file cannot be read
    // On the printer that the user chooses in the dialog, or on the default one. Throws RuleError when there is none, and
    // when it does not take the report.
    void printOut(QWidget *window);

private:
    QString m_templateFile;
    bool m_showPrintDialog = false;
};

} // namespace Tallymere
