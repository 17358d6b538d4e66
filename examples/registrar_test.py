"""A registrar test: the contacts that the body of a "reg" event notification (RFC 3680) has.

usage: pytest registrar_test.py
"""

import pathlib

import imsxml

PHONE = "sip:+15550142@198.51.100.17:31112;transport=tcp"
SAMPLES = pathlib.Path(__file__).resolve().parents[1] / "samples"


def notification() -> bytes:
    """Return the body of the NOTIFY that the registrar has sent; here, a sample."""
    return (SAMPLES / "reginfo/typical.xml").read_bytes()


def test_the_phone_is_registered_under_both_numbers() -> None:
    root = imsxml.decode(notification(), content_type="application/reginfo+xml")["root"]
    contacts = {entry["aor"]: entry["contact"] for entry in root["registration"]}
    assert set(contacts) == {"sip:+15550142@ims.example.net", "tel:+15550142"}
    for contact, in contacts.values():
        assert (contact["uri"], contact["state"]) == (PHONE, "active")
