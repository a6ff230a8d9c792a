#pragma once

#include <QString>

namespace Tallymere {

// A report whose layout stands in a template file.
class TemplateReport
{
public:
    virtual ~TemplateReport() = default;

    virtual QString name() const = 0;
    virtual QString templateFile() const = 0;
    virtual void loadTemplate() = 0; // from templateFile()
    virtual void setShowPrintDialog(bool show) = 0;
    virtual void print() = 0;
};

} // namespace Tallymere
