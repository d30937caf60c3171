#pragma once

#include "shell/PageSetup.h"

/// A printer that keeps the documents printed on it.
class RecordingPrinter : public PrinterDevice
{
public:
    /// The pages of a document, with its name and orientation.
    struct Document : std::vector<Drawing>
    {
        QString name;
        PageOrientation orientation;
    };
    using Documents = std::vector<Document>;

    /// `chosen` is the page that the user left in the printer dialog.
    explicit RecordingPrinter(Documents& documents, PageLayout chosen = {})
        : m_documents(documents), m_chosen(std::move(chosen))
    {}

    void takeChoices(PageLayout& layout) const override { layout = m_chosen; }
    void print(const PrintedDocument& document) override
    {
        m_documents.push_back({document.pages, document.name, document.orientation});
    }

private:
    Documents& m_documents;
    PageLayout m_chosen;
};
