#include "checks/valautorise.h"

#include "checks/index.h"

namespace quilvane {

constexpr indexListe indexTD(TD);
constexpr indexListe indexTDC(TDC);
constexpr indexListe indexTP(TP);
constexpr indexListe indexTR(TR);
constexpr indexListe indexTDD(TDD);
constexpr indexListe indexTRG(TRG);
constexpr indexListe indexTRFNV(TRFNV);
constexpr indexListe indexTCPNOCEE(TCPNOCEE);
constexpr indexListe indexTCPNOECH(TCPNOECH);

}  // namespace quilvane
