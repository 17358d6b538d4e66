/// @file
/// GRUU information (RFC 5628): a globally routable user agent URI.
///
/// - Root element: `pub-gruu`, with the attribute `uri`, or `temp-gruu`, with `uri` and `first-cseq`; no children.
/// - Namespace: urn:ietf:params:xml:ns:gruuinfo. It is neither expected nor written.
/// - Prefixes: removed.
/// - Read and written. Other attributes, namespace declarations among them, are refused with a log line and lost.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_GRUU_H
#define IX_XML_GRUU_H

#include "XmlFamily.h"

/// What both kinds of GRUU share. A kind takes its own attributes only: any other is refused with a log line that names
/// the class. Children and text are ignored.
class IX_XML_EXPORT ix_gruuType : public XmlDescribedObject {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_GRUU, class GruuDataBinder>;

    ~ix_gruuType() override { ixRelease(*this, kClass); }

    /// Copies `uri`; NULL clears it. @return 1, or 0 without memory, the earlier URI kept.
    int setUriValue(const char* uri) { return ixSetText(mUri, uri); }

    char* mUri = nullptr;  ///< Owned; NULL: not set. Mandatory in a written document.

  protected:
    explicit ix_gruuType(const XmlClass& description) : XmlDescribedObject(description) {}
};

/// The element `pub-gruu`: a public GRUU.
class IX_XML_EXPORT ix_pub_gruu : public ix_gruuType {
  public:
    static const XmlClass kClass;

    ix_pub_gruu() : ix_gruuType(kClass) {}

  protected:
    /// For a derived class, which passes its own description.
    explicit ix_pub_gruu(const XmlClass& description) : ix_gruuType(description) {}
};

/// The element `temp-gruu`: a temporary GRUU.
class IX_XML_EXPORT ix_temp_gruu : public ix_gruuType {
  public:
    static const XmlClass kClass;

    ix_temp_gruu() : ix_gruuType(kClass) {}
    ~ix_temp_gruu() override { ixRelease(*this, kClass); }
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

    /// @return 1.
    int setFirstCseqValue(std::int64_t firstCseq) { return ixSetNumber(mFirstCseq, firstCseq); }

    std::int64_t mFirstCseq = 0;  ///< The first CSeq for which the GRUU was valid; there is no 'not set'. Always
                                  ///< written: here as its low 32 bits, in a registration as it is.

  protected:
    /// For a derived class, which passes its own description.
    explicit ix_temp_gruu(const XmlClass& description) : ix_gruuType(description) {}
};

/// A public GRUU inside another document. Neither read nor written; the class is there for applications.
class IX_XML_EXPORT ix_ns_gruuinfo_pubGruu : public ix_pub_gruu {
  public:
    static const XmlClass kClass;

    ix_ns_gruuinfo_pubGruu() : ix_pub_gruu(kClass) {}
};

/// A temporary GRUU inside another document. Neither read nor written; the class is there for applications.
class IX_XML_EXPORT ix_ns_gruuinfo_tempGruu : public ix_temp_gruu {
  public:
    static const XmlClass kClass;

    ix_ns_gruuinfo_tempGruu() : ix_temp_gruu(kClass) {}
};

/// @name The elements as every document writes them: empty, with the element prefix that is set.
/// @return false without a URI, when the start tag stays unterminated.
/// @{
IX_XML_EXPORT bool ixWriteGruu(XmlFamilyMarshaller& marshaller, const ix_pub_gruu& gruu);
/// @param firstCseq what is written of the number of `gruu`.
IX_XML_EXPORT bool ixWriteGruu(XmlFamilyMarshaller& marshaller, const ix_temp_gruu& gruu, std::int64_t firstCseq);
/// @}

/// Creates the elements of the schema, which the caller links. Each creator yields NULL without memory.
class IX_XML_EXPORT GruuDataBinder : public XMLObjectFactory {
  public:
    ~GruuDataBinder() override;

    /// Names the root to create: "pub-gruu" or "temp-gruu" (copied); NULL clears it. @return 1, or 0 without memory,
    /// the earlier name kept.
    int setGruutypeValue(const char* type) { return ixSetText(m_pGruutype, type); }
    /// The root that `setGruutypeValue` named; NULL when it named none, or without memory. Required: any leading part
    /// of the two words selects, the empty text "pub-gruu".
    XMLElement* CreateRootElement() override;
    ix_pub_gruu* CreatePubGruuElement();
    ix_temp_gruu* CreateTempGruuElement();

  private:
    char* m_pGruutype = nullptr;  ///< Owned; NULL: not set.
};

/// Logs each document.
class IX_XML_EXPORT GruuUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    GruuUnMarshaller();

    using XmlFamilyUnMarshaller::UnMarshall;
    XMLElement* UnMarshall(const char* text) override;
};

/// Writes the XML declaration and one empty element, as in `<temp-gruu  first-cseq="7"  uri="sip:..."/>`. An element of
/// any other class is no error: the text is the declaration alone.
class IX_XML_EXPORT GruuMarshaller : public XmlFamilyMarshaller {
  public:
    GruuMarshaller();

    /// @return 1, or 0 for NULL or without a URI.
    int AddPubGruuElementToXml(ix_pub_gruu* gruu);
    /// @return 1, or 0 for NULL or without a URI.
    int AddTempGruuElementToXml(ix_temp_gruu* gruu);

  protected:
    bool Begin(XMLElement* root) override;
    int AddRootElementToXml(XMLElement* root) override;
};

class IX_XML_EXPORT GruuContext : public XmlFamilyContext {
  public:
    GruuContext();
};

#endif
