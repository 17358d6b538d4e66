/// @file
/// GRUU information (RFC 5628): a globally routable user agent URI.
///
/// - Root element: `pub-gruu`, with the attribute `uri`, or `temp-gruu`, with `uri` and `first-cseq`; no children.
/// - Namespace: urn:ietf:params:xml:ns:gruuinfo. It is neither expected nor written.
/// - Prefixes: removed.
/// - Read and written. Other attributes, namespace declarations among them, are refused with a log line and lost.
#ifndef IX_XML_GRUU_H
#define IX_XML_GRUU_H

#include "XmlOldFamily.h"
#include "XmlFields.h"

/// What both kinds of GRUU share. Attributes that a kind does not know are refused with a log line.
class IX_XML_EXPORT ix_gruuType : public XMLObject {
  public:
    ~ix_gruuType() override;
    const char* BaseClassName() const override { return "XMLObject"; }
    int Reserved() const override { return 0; }
    int IsRootElement() const override { return 1; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

    /// Copies `uri`; NULL clears it. @return 1, or 0 without memory, the earlier URI kept.
    int setUriValue(const char* uri);

    char* mUri = nullptr;  ///< Owned; NULL: not set. Mandatory in a written document.

  protected:
    /// Logs that an attribute was refused.
    virtual void LogRefusal() const = 0;
};

/// The element `pub-gruu`: a public GRUU.
class IX_XML_EXPORT ix_pub_gruu : public ix_gruuType {
  public:
    static constexpr char kClassName[] = "ix_pub_gruu";

    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "PubGruu"; }

  protected:
    void LogRefusal() const override;
};

/// The element `temp-gruu`: a temporary GRUU.
class IX_XML_EXPORT ix_temp_gruu : public ix_gruuType {
  public:
    static constexpr char kClassName[] = "ix_temp_gruu";

    const char* ClassName() const override { return kClassName; }
    const char* TypeName() const override { return "TempGruu"; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

    /// @return 1.
    int setFirstCseqValue(std::int64_t firstCseq);

    std::int64_t mFirstCseq = 0;  ///< The first CSeq for which the GRUU was valid. Always written, as its low 32 bits.

  protected:
    void LogRefusal() const override;
};

/// A public GRUU inside another document. Neither read nor written; the class is there for applications.
class IX_XML_EXPORT ix_ns_gruuinfo_pubGruu : public ix_pub_gruu {
  public:
    static constexpr char kClassName[] = "ix_ns_gruuinfo_pubGruu";

    const char* ClassName() const override { return kClassName; }
    int IsRootElement() const override { return 0; }

  protected:
    void LogRefusal() const override;
};

/// A temporary GRUU inside another document. Neither read nor written; the class is there for applications.
class IX_XML_EXPORT ix_ns_gruuinfo_tempGruu : public ix_temp_gruu {
  public:
    static constexpr char kClassName[] = "ix_ns_gruuinfo_tempGruu";

    const char* ClassName() const override { return kClassName; }
    int IsRootElement() const override { return 0; }

  protected:
    void LogRefusal() const override;
};

/// Creates the elements of the schema, which the caller links. Each creator yields NULL without memory.
class IX_XML_EXPORT GruuDataBinder : public XMLObjectFactory {
  public:
    ~GruuDataBinder() override;

    /// Names the root to create: "pub-gruu" or "temp-gruu" (copied); NULL clears it. @return 1, or 0 without memory.
    int setGruutypeValue(const char* type);
    /// The root that `setGruutypeValue` named; NULL when it named none, or without memory. Required: any leading part
    /// of the two words selects, the empty text "pub-gruu".
    XMLElement* CreateRootElement() override;
    ix_pub_gruu* CreatePubGruuElement();
    ix_temp_gruu* CreateTempGruuElement();

  private:
    char* m_pGruutype = nullptr;
};

class IX_XML_EXPORT GruuUnMarshaller : public XmlOldFamilyUnMarshaller {
  protected:
    const XmlOldUnMarshallerInfo& Info() const override;
};

/// Writes the XML declaration and one empty element, as in `<temp-gruu  first-cseq="7"  uri="sip:..."/>`. An element of
/// any other class is no error: the text is the declaration alone.
class IX_XML_EXPORT GruuMarshaller : public XmlOldFamilyMarshaller {
  public:
    GruuMarshaller();

    /// @return 1, or 0 without a URI.
    int AddPubGruuElementToXml(ix_pub_gruu* element);
    /// @return 1, or 0 without a URI.
    int AddTempGruuElementToXml(ix_temp_gruu* element);

  protected:
    int AddRootElementToXml(XMLElement* root) override;

  private:
    int AddUri(const ix_gruuType* element, const XmlLogText& missing);
};

class IX_XML_EXPORT GruuContext : public XmlOldFamilyContext {
  protected:
    XmlOldFamilyMarshaller* NewMarshaller() override;
    XmlOldFamilyUnMarshaller* NewUnMarshaller() override;
    XMLObjectFactory* NewBinderFactory() override;
};

#endif
