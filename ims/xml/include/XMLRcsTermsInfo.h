/// @file
/// RCS terms information (GSMA RCS): the terms and conditions that a rich communication service offers its user.
///
/// - Root element: `rcs-terms-info`, with the attribute `version`, the text `termsVersion` and any number of `term`s,
///   each with the texts `title` and `url`.
/// - Namespace: none is expected or written.
/// - Prefixes: removed.
/// - Read and written. Other attributes and elements are lost.
#ifndef IX_XML_RCS_TERMS_INFO_H
#define IX_XML_RCS_TERMS_INFO_H

#include "XmlElementSupport.h"
#include "XmlOldFamily.h"
#include "XmlFields.h"

/// The element `term`: one document for the user to read.
class IX_XML_EXPORT ix_ns_rcs_terms_info_term : public XMLElement {
  public:
    static constexpr char kClassName[] = "ix_ns_rcs_terms_info_term";

    ~ix_ns_rcs_terms_info_term() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLElement"; }
    const char* TypeName() const override { return "Term"; }
    int Reserved() const override { return 0; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

    /// Copies `title`; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
    int setTitleValue(const char* title) { return ixSetText(mTitle, title); }
    /// Copies `url`; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
    int setUrlValue(const char* url) { return ixSetText(mUrl, url); }

    char* mTitle = nullptr;  ///< Owned; NULL: not set.
    char* mUrl = nullptr;    ///< Owned; where the document is. NULL: not set.
};

/// The element `rcs-terms-info`.
class IX_XML_EXPORT ix_rcs_terms_info : public XMLObject {
  public:
    static constexpr char kClassName[] = "ix_rcs_terms_info";

    ~ix_rcs_terms_info() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLObject"; }
    const char* TypeName() const override { return "RcsTermsInfo"; }
    int Reserved() const override { return 0; }
    int IsRootElement() const override { return 1; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

    /// Copies `version`; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
    int setVersionValue(const char* version) { return ixSetText(mVersion, version); }
    /// Copies `version`; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
    int setTermsVersionValue(const char* version) { return ixSetText(mTermsVersion, version); }
    /// Takes over a list of `ix_ns_rcs_terms_info_term`s in place of an earlier one, which is deleted; NULL: none.
    /// @return 1.
    int setTermsValue(IxSingleElementList* list) { return ixSetElementList(mTerms, list); }
    /// Appends `term`, which then belongs to the element. @return 1, or 0 without memory, when it stays with the
    /// caller.
    int addTerm(ix_ns_rcs_terms_info_term* term);

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

class IX_XML_EXPORT RcsTermsInfoUnMarshaller : public XmlOldFamilyUnMarshaller {
  protected:
    const XmlOldUnMarshallerInfo& Info() const override;
};

/// Writes the XML declaration and the document. What is not set is left out.
class IX_XML_EXPORT RcsTermsInfoMarshaller : public XmlOldFamilyMarshaller {
  public:
    RcsTermsInfoMarshaller();

    /// @return 1, or 0 for NULL, and for a list with an element of another class in it, after giving up the document.
    int AddRcsTermsInfoElementToXml(ix_rcs_terms_info* element);
    /// @return 1, or 0 for NULL.
    int AddTermElementToXml(ix_ns_rcs_terms_info_term* term);
};

class IX_XML_EXPORT RcsTermsInfoContext : public XmlOldFamilyContext {
  protected:
    XmlOldFamilyMarshaller* NewMarshaller() override;
    XmlOldFamilyUnMarshaller* NewUnMarshaller() override;
    XMLObjectFactory* NewBinderFactory() override;
};

#endif
