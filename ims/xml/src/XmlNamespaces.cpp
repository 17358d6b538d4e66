#include "XmlNamespaces.h"

namespace {

template <std::size_t size>
constexpr XmlNamespaceInfo Row(const char (&uri)[size], const char* prefix) {
    return {uri, size - 1, prefix};
}

}  // namespace

const XmlNamespaceInfo kXmlNamespaces[kXmlNamespaceCount] = {
    Row("", ""),
    Row("http://www.w3.org/XML/1998/namespace", "xml"),
    Row("http://www.w3.org/2000/xmlns/", "xmlns"),
    Row("http://uri.etsi.org/ngn/params/xml/simservs/xcap", "ss"),
    Row("urn:ietf:params:xml:ns:common-policy", "cp"),
    Row("urn:oma:xml:xdm:common-policy", "ocp"),
    Row("urn:ietf:params:xml:ns:xcap-error", "xe"),
    Row("urn:oma:xml:xdm:xcap-directory", "xd"),
    Row("urn:ietf:params:xml:ns:reginfo", "ri"),
    Row("urn:ietf:params:xml:ns:gruuinfo", "gr"),
    Row("urn:ietf:params:xml:ns:conference-info", "ci"),
    Row("urn:ietf:params:xml:ns:pidf", "pidf"),
    Row("urn:oma:xml:prs:pidf:oma-pres", "op"),
    Row("urn:ietf:params:xml:ns:pidf:caps", "caps"),
    Row("urn:ietf:params:xml:ns:resource-lists", "rl"),
    Row("urn:ietf:params:xml:ns:rls-services", "rls"),
    Row("urn:ietf:params:xml:ns:rlmi", "rlmi"),
    Row("urn:ietf:params:xml:ns:imdn", "imdn"),
    Row("urn:ietf:params:xml:ns:im-iscomposing", "isc"),
    Row("urn:gsma:params:xml:ns:rcs:rcs:fthttp", "ft"),
    Row("uri:3gpp-gba", "gba"),
};
