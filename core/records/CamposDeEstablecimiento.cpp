#include "core/services/svrZELT/CamposDeEstablecimiento.h"
#include "core/records/cZTEstablecimientos.h"

namespace {

using C = svrZELT::CamposDeEstablecimiento;
using E = cZTEstablecimientos;
using Campo = CampoDeRegistro<E>;

/// What the store keeps of the record, all but its key and that of its owner.
constexpr std::array kCampos{Campo{C::kCIM, u"CIM", &E::CIM, EnMayusculas},
                             Campo{C::kDomicilio, u"DOMICILIO", &E::Domicilio},
                             Campo{C::kProvin, u"PROVIN", &E::Provin}, Campo{C::kCMuni, u"CODMUN", &E::CMuni},
                             Campo{C::kMunici, u"MUNICI", &E::Munici}};
static_assert(kCampos.size() + 2 == C::kColumnas.size());

}  // namespace

CamposDe<cZTEstablecimientos> cZTEstablecimientos::Campos() { return kCampos; }
