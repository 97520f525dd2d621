#include "core/services/svrZELT/CamposDeDeclarante.h"
#include "core/records/cZTDeclarante.h"

namespace {

using C = svrZELT::CamposDeDeclarante;
using D = cZTDeclarante;
using Campo = CampoDeRegistro<D>;

/// What the store keeps of the record, all but the key.
constexpr std::array kCampos{Campo{C::kNIF, u"NIF", &D::NIF, EnMayusculas},
                             Campo{C::kNombre, u"NOMBRE", &D::Nombre, EnMayusculas},
                             Campo{C::kSiglas, u"SIGLAS", &D::Siglas, EnMayusculas},
                             Campo{C::kDomicilio, u"DOMICILIO", &D::Domicilio, EnMayusculas},
                             Campo{C::kNumero, u"NUMERO", &D::Numero},
                             Campo{C::kLetra, u"LETRA", &D::Letra, EnMayusculas},
                             Campo{C::kEscal, u"ESCAL", &D::Escal, EnMayusculas},
                             Campo{C::kPiso, u"PISO", &D::Piso, EnMayusculas},
                             Campo{C::kMano, u"MANO", &D::Mano, EnMayusculas},
                             Campo{C::kProvin, u"PROVIN", &D::Provin, ConDosCifras},
                             Campo{C::kCPost, u"CPOST", &D::CPost, ConCincoCifras},
                             Campo{C::kCMuni, u"CODMUN", &D::CMuni, EnMayusculas},
                             Campo{C::kMunici, u"MUNICI", &D::Munici, EnMayusculas},
                             Campo{C::kTelepre, u"TELPRE", &D::Telepre},
                             Campo{C::kTelNum, u"TELNUM", &D::TelNum}};
static_assert(kCampos.size() + 1 == C::kColumnas.size());

}  // namespace

CamposDe<cZTDeclarante> cZTDeclarante::Campos() { return kCampos; }
