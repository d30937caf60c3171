#pragma once

#include "platform/PrinterDevice.h"

/// A printer that keeps the documents printed on it.
class RecordingPrinter : public PrinterDevice
{
public:
    /// The pages of a document, with its name and orientation.
    struct Document : std::vector<Drawing>
    {
        QString name;
        int orientation;
    };
    using Documents = std::vector<Document>;

    /// `orientation` is what the user left in the printer dialog.
    explicit RecordingPrinter(Documents& documents, int orientation = 2)
        : m_documents(documents), m_orientation(orientation)
    {}

    int orientation() const override { return m_orientation; }
    void print(const PrintedDocument& document) override
    {
        m_documents.push_back({document.pages, document.name, document.orientation});
    }

private:
    Documents& m_documents;
    int m_orientation;
};
