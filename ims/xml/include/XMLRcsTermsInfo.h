/// @file
/// RCS terms information (GSMA RCS): the terms and conditions that a rich communication service offers its user.
///
/// - Root element: `rcs-terms-info`, with the attribute `version`, the text `termsVersion` and any number of `term`s,
///   each with the texts `title` and `url`.
/// - Namespace: none is expected or written.
/// - Prefixes: removed.
/// - Read and written. Other attributes and elements are lost.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_RCS_TERMS_INFO_H
#define IX_XML_RCS_TERMS_INFO_H

#include "XmlFamily.h"

/// The element `term`: one document for the user to read.
class IX_XML_EXPORT ix_ns_rcs_terms_info_term : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_rcs_terms_info_term() : XmlDescribedElement(kClass) {}
    ~ix_ns_rcs_terms_info_term() override { ixRelease(*this, kClass); }

    /// Copies `title`; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
    int setTitleValue(const char* title) { return ixSetText(mTitle, title); }
    /// Copies `url`; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
    int setUrlValue(const char* url) { return ixSetText(mUrl, url); }

    char* mTitle = nullptr;  ///< Owned; NULL: not set.
    char* mUrl = nullptr;    ///< Owned; where the document is. NULL: not set.
};

/// The element `rcs-terms-info`.
class IX_XML_EXPORT ix_rcs_terms_info : public XmlDescribedObject {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_RCS_TERMS_INFO, class RcsTermsInfoDataBinder>;

    ix_rcs_terms_info() : XmlDescribedObject(kClass) {}
    ~ix_rcs_terms_info() override { ixRelease(*this, kClass); }

    /// Copies `version`; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
    int setVersionValue(const char* version) { return ixSetText(mVersion, version); }
    /// Copies `version`; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
    int setTermsVersionValue(const char* version) { return ixSetText(mTermsVersion, version); }
    /// Takes over a list of `ix_ns_rcs_terms_info_term`s in place of an earlier one, which is deleted; NULL: none.
    /// @return 1.
    int setTermsValue(IxSingleElementList* list) { return ixSetList(*this, mTerms, list); }
    /// Appends `term`, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addTerm(ix_ns_rcs_terms_info_term* term) { return ixAdd(*this, mTerms, term); }

    char* mVersion = nullptr;       ///< Owned; version of the document's form. NULL: not set.
    char* mTermsVersion = nullptr;  ///< Owned; version of the terms. NULL: not set.
    IxSingleElementList* mTerms =
        nullptr;  ///< Owned `ix_ns_rcs_terms_info_term`s in the order of the text; NULL: none.
};

/// Creates the elements of the schema; each creator yields NULL without memory.
class IX_XML_EXPORT RcsTermsInfoDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_rcs_terms_info`.
    XMLElement* CreateRootElement() override;
    ix_ns_rcs_terms_info_term* CreateTermElement();
};

class IX_XML_EXPORT RcsTermsInfoUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    RcsTermsInfoUnMarshaller();
};

/// Writes the XML declaration and the document. What is not set is left out.
class IX_XML_EXPORT RcsTermsInfoMarshaller : public XmlFamilyMarshaller {
  public:
    RcsTermsInfoMarshaller();

    /// @return 1, or 0 for NULL, and for a list with an element of another class in it, after giving up the document.
    int AddRcsTermsInfoElementToXml(ix_rcs_terms_info* element);
    /// @return 1, or 0 for NULL.
    int AddTermElementToXml(ix_ns_rcs_terms_info_term* term);
};

class IX_XML_EXPORT RcsTermsInfoContext : public XmlFamilyContext {
  public:
    RcsTermsInfoContext();
};

#endif
