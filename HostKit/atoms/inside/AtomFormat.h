// What the bytes of an archive of the kit's atoms mean, version 1.
//
// A header, then the objects, one record behind the other. Numbers are little-endian.
//
//   header   8  "KitAtoms"
//            4  version, 1
//            4  number of objects
//            8  length of all records, exactly what follows the header
//            8  checksum of all records and of the 24 bytes before it
//
//   record   2  length of the class name
//            2  length of the name
//            4  length of the content
//            4  length of the members' records
//            4  identifier of the original, and
//            8  of the process that it was in
//               class name, name, content, members
#pragma once

#include "HostKit/atoms/ActiveMembers.h"
#include "HostKit/atoms/Atom.h"

#include <string>

namespace hostkit
{

class AtomFormat
{
public:
    // Empty, and `trouble` names the object, when one is no atom of the kit or of a class that was not registered.
    static std::string Write(const ActiveMembers& members, std::string& trouble);
    // All or none: then `trouble` says why. The bytes may be any at all.
    static std::vector<CStubRef<CAtom>> Read(std::string_view bytes, std::string& trouble);

    static bool IsKnown(const CAtom& atom); // is its class registered?
    // Another object of the same content, which takes over the members; empty when it cannot be made.
    static CStubRef<CAtom> MakeAnew(CAtom& atom);

private:
    struct Record;

    static void Add(std::string& bytes, const CAtom& atom, std::string& trouble);
    static bool Next(std::string_view& rest, Record& record);
    static CStubRef<CAtom> Make(const Record& record, int depth, std::string& trouble);
    static CStubRef<CAtom> MakeOfClass(const std::string& name);
};

} // namespace hostkit
