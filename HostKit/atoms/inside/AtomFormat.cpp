#include "HostKit/atoms/inside/AtomFormat.h"

#include "Kernel/Kernel.h"
#include "Toolkit/base/Checksum.h"

#include <bit>
#include <cstring>
#include <limits>
#include <map>
#include <random>

namespace hostkit
{
namespace
{

constexpr std::string_view kMark = "KitAtoms";
constexpr std::uint32_t kVersion = 1;
constexpr std::size_t kHeader = 32, kSummed = 24, kRecord = 24;
constexpr int kDeepest = 200; // containers inside each other

static_assert(std::endian::native == std::endian::little, "numbers are stored as they are in memory");

std::map<std::type_index, std::string>& Classes()
{
    static std::map<std::type_index, std::string> s_classes{{typeid(CContainer), "hostkit::CContainer"}};
    return s_classes;
}

std::uint64_t ThisProcess()
{
    static const std::uint64_t s_token = std::random_device()() | std::uint64_t{std::random_device()()} << 32;
    return s_token;
}

template <class Number>
Number NumberAt(std::string_view bytes, std::size_t at)
{
    Number number;
    std::memcpy(&number, bytes.data() + at, sizeof number);
    return number;
}
template <class Number>
void Append(std::string& bytes, std::size_t number)
{
    const auto stored = static_cast<Number>(number);
    bytes.append(reinterpret_cast<const char*>(&stored), sizeof stored);
}

std::uint64_t SumOf(std::string_view bytes)
{
    return toolkit::Checksum(bytes.substr(0, kSummed), toolkit::Checksum(bytes.substr(kHeader)));
}

std::string TroubleOf(std::string_view bytes)
{
    if (bytes.size() < kHeader || !bytes.starts_with(kMark))
        return "not an archive of objects";
    if (NumberAt<std::uint32_t>(bytes, 8) != kVersion)
        return "an archive of another version";
    if (NumberAt<std::uint64_t>(bytes, 16) != bytes.size() - kHeader)
        return "the archive is not complete";
    return NumberAt<std::uint64_t>(bytes, kSummed) == SumOf(bytes) ? "" : "the archive is damaged";
}

} // namespace

struct AtomFormat::Record
{
    std::string className, name;
    std::string_view content, members;
    DWORD origin = 0;
};

void RegisterAtom(const char* pszClass, std::type_index type, CStubBaseInterface* (*make)())
{
    Classes()[type] = pszClass;
    KRNL_RegisterClass(pszClass, make);
}

bool AtomFormat::IsKnown(const CAtom& atom)
{
    return Classes().contains(typeid(atom));
}

void AtomFormat::Add(std::string& bytes, const CAtom& atom, std::string& trouble)
{
    constexpr std::size_t kMostName = std::numeric_limits<std::uint16_t>::max();
    const auto known = Classes().find(typeid(atom));
    std::string content = atom.Save(), members;
    if (const auto* const pContainer = dynamic_cast<const CContainer*>(&atom))
        for (const CStubRef<CAtom>& pMember : pContainer->Members())
            Add(members, *pMember.Get(), trouble);
    const bool bFits = atom.m_name.size() <= kMostName && content.size() < 1u << 31 && members.size() < 1u << 31;
    if (trouble.empty() && (known == Classes().end() || !bFits))
        trouble = atom.m_name + ": it cannot be carried";
    if (!trouble.empty())
        return;
    Append<std::uint16_t>(bytes, known->second.size());
    Append<std::uint16_t>(bytes, atom.m_name.size());
    Append<std::uint32_t>(bytes, content.size());
    Append<std::uint32_t>(bytes, members.size());
    Append<std::uint32_t>(bytes, atom.m_dwID);
    Append<std::uint64_t>(bytes, ThisProcess());
    bytes += known->second + atom.m_name + content + members;
}

std::string AtomFormat::Write(const ActiveMembers& members, std::string& trouble)
{
    std::string records;
    for (const ActiveMember& member : members)
        if (const CAtom* const pAtom = CAtom::Of(member.pAtom.Get()))
            Add(records, *pAtom, trouble);
        else
            trouble = "An object of another host cannot be carried";
    if (!trouble.empty())
        return {};
    std::string bytes(kMark);
    Append<std::uint32_t>(bytes, kVersion);
    Append<std::uint32_t>(bytes, members.size());
    Append<std::uint64_t>(bytes, records.size());
    Append<std::uint64_t>(bytes, 0);
    bytes += records;
    const std::uint64_t sum = SumOf(bytes);
    std::memcpy(bytes.data() + kSummed, &sum, sizeof sum);
    return bytes;
}

bool AtomFormat::Next(std::string_view& rest, Record& record)
{
    if (rest.size() < kRecord)
        return false;
    const std::size_t lengths[] = {NumberAt<std::uint16_t>(rest, 0), NumberAt<std::uint16_t>(rest, 2),
                                   NumberAt<std::uint32_t>(rest, 4), NumberAt<std::uint32_t>(rest, 8)};
    record.origin = NumberAt<std::uint64_t>(rest, 16) == ThisProcess() ? NumberAt<std::uint32_t>(rest, 12) : 0;
    rest.remove_prefix(kRecord);
    std::string_view parts[4];
    for (int i = 0; i < 4; ++i) {
        if (lengths[i] > rest.size())
            return false;
        parts[i] = rest.substr(0, lengths[i]);
        rest.remove_prefix(lengths[i]);
    }
    record.className = parts[0];
    record.name = parts[1];
    record.content = parts[2];
    record.members = parts[3];
    return true;
}

std::vector<CStubRef<CAtom>> AtomFormat::Read(std::string_view bytes, std::string& trouble)
{
    std::vector<CStubRef<CAtom>> atoms;
    trouble = TroubleOf(bytes);
    std::string_view rest = trouble.empty() ? bytes.substr(kHeader) : std::string_view();
    for (Record record; trouble.empty() && Next(rest, record);)
        atoms.push_back(Make(record, 0, trouble));
    if (trouble.empty() && (!rest.empty() || atoms.size() != NumberAt<std::uint32_t>(bytes, 12)))
        trouble = "the archive holds what no archive holds";
    if (!trouble.empty())
        atoms.clear();
    return atoms;
}

CStubRef<CAtom> AtomFormat::Make(const Record& record, int depth, std::string& trouble)
{
    CStubRef<CAtom> pAtom = MakeOfClass(record.className);
    auto* const pContainer = dynamic_cast<CContainer*>(pAtom.Get());
    if (!pAtom)
        trouble = record.name + ": this program does not know such objects (" + record.className + ')';
    else if (depth >= kDeepest || !pAtom->Load(record.content) || (!pContainer && !record.members.empty()))
        trouble = record.name + ": it cannot be read";
    if (!trouble.empty())
        return nullptr;
    pAtom->m_name = record.name;
    pAtom->m_dwOrigin = record.origin;
    std::string_view rest = record.members;
    for (Record member; trouble.empty() && Next(rest, member);) {
        const CStubRef<CAtom> pMember = Make(member, depth + 1, trouble);
        if (trouble.empty() && !pContainer->Add(pMember.Get()))
            trouble = member.name + ": it cannot be read";
    }
    if (trouble.empty() && !rest.empty())
        trouble = record.name + ": it cannot be read";
    return pAtom;
}

CStubRef<CAtom> AtomFormat::MakeOfClass(const std::string& name)
{
    if (name == Classes()[typeid(CContainer)])
        return CStubRef<CAtom>::Adopt(new CContainer);
    for (const auto& [type, known] : Classes()) {
        if (known != name)
            continue;
        CStubRef<IAtom> pMade;
        const auto pKernel = CStubRef<IKernel>::Adopt(KRNL_GetKernel());
        pKernel->CreateObject(name.c_str(), pMade.Receive(), IID_IAtom);
        return CStubRef<CAtom>::Share(CAtom::Of(pMade.Get()));
    }
    return nullptr;
}

CStubRef<CAtom> AtomFormat::MakeAnew(CAtom& atom)
{
    const auto known = Classes().find(typeid(atom));
    if (known == Classes().end())
        return nullptr;
    CStubRef<CAtom> pNew = MakeOfClass(known->second);
    if (!pNew || !pNew->Load(atom.Save()))
        return nullptr;
    if (auto* const pFormer = dynamic_cast<CContainer*>(&atom)) {
        auto& container = dynamic_cast<CContainer&>(*pNew.Get());
        while (!pFormer->m_members.empty()) {
            const CStubRef<CAtom> pMember = pFormer->TakeOut(*pFormer->m_members.front().Get());
            container.Add(pMember.Get());
        }
    }
    return pNew;
}

} // namespace hostkit
