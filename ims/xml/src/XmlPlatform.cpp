#include "XmlPlatform.h"

namespace {

/// How many `XmlTidy` live on this thread.
thread_local unsigned tidies = 0;

}  // namespace

void* XmlHeapObject::operator new(std::size_t size) noexcept { return __malloc(size); }

void* XmlHeapObject::operator new(std::size_t size, const std::nothrow_t&) noexcept { return __malloc(size); }

void XmlHeapObject::operator delete(void* object) noexcept { __free(object); }

void XmlHeapObject::operator delete(void* object, const std::nothrow_t&) noexcept { __free(object); }

XmlTidy::XmlTidy() { ++tidies; }

XmlTidy::~XmlTidy() { --tidies; }

bool XmlTidy::IsOn() { return tidies != 0; }
