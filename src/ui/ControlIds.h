// Control identifiers of every element that is a window, stable across
// versions, so that tests and assistive tools can find them. The window text
// of each is its caption, or its element name where it has none.
#pragma once

namespace ui::ids {

// frmPrincipal
inline constexpr int picIconoActual = 1101;
inline constexpr int picNuevoIcono = 1102;
inline constexpr int picIconoDefaultFolder = 1103;
inline constexpr int txtInfoCarpeta = 1104;
inline constexpr int cboARA = 1105;
inline constexpr int lvwIconos = 1106;
inline constexpr int picBuscarArchivo = 1107;
inline constexpr int picAplicar = 1108;
inline constexpr int picStatus = 1109;
inline constexpr int picSalir = 1110;
inline constexpr int picBack = 1111;
inline constexpr int picTMP = 1112;

// frmSplash
inline constexpr int txtInfo = 1201;
inline constexpr int picActualizar = 1202;
inline constexpr int picWebPage = 1203;
inline constexpr int picAyuda = 1204;
inline constexpr int picAceptar = 1205;
inline constexpr int picConfig = 1206;
inline constexpr int splashPicBack = 1207;
inline constexpr int picImagen = 1208;

}  // namespace ui::ids
