// SPDX-License-Identifier: MIT
// Every enumeration that documents and items name. The integer of a value is its position: files store it, so the order
// is part of the formats. The prefix of a value is its scope; where the prefixes of two enumerations clash, as `ea` of
// editor actions with that of arrows of diagram edges, the younger one stands in a namespace of its own.
#pragma once

#include <cstdint>
#include <string_view>

#include <vagrel/foundation/TKSLSet.h>

namespace vagrel {

// Units, places and looks

/// Document units; see Units.h for their factors.
enum TKSLUnits : std::int32_t { unMM, unINCH, unCM, unDM, unM, unFt, unYd };

/// Quarter turns.
enum TKSLAngle : std::int32_t { ag0, ag90, ag180, ag270 };

enum TKSLHorzAlign : std::int32_t { haLeft, haCenter, haRight, haJustify };

enum TKSLVertAlign : std::int32_t { vaTop, vaCenter, vaBottom };

/// Dash patterns; the digits name the proportions of dash and gap.
enum TKSLineType : std::int32_t { iiSolid, ii0505, ii11, ii21, ii12, ii22, ii31, ii33, ii41, ii42, ii44, ii411 };

/// Terminals of a line.
enum TKSLTermType : std::int32_t {
    ttNone,
    ttCircle,
    ttFillCircle,
    ttArrow,
    ttFillArrow,
    ttSquare,
    ttFillSquare,
    ttRhombus,
    ttFillRhombus,
    ttLeftDia,
    ttRightDia,
    ttCross
};

enum TKSLGradient : std::int32_t { grNone, grHorz, grVert };

/// What a drawing context paints.
enum TKSLDrawState : std::int32_t { dsLabel, dsEdit, dsPreview, dsExport, dsPrint, dsSymbol };

/// How numbers are written to SVG.
enum TKSLExportSVG : std::int32_t { svCurrentUnit, svCurUnitNoMed, svFactor, svFactorPx };

/// Document file kinds.
enum TKSLExt : std::int32_t { lfBin, lfJSON };

/// Kinds of page export.
enum TKSLExport : std::int32_t { exPDF, exXPS, exBMP, exPNG, exGIF, exJPEG };

// The document

/// Kinds of document.
enum TKSLEditorMode : std::int32_t { emLabelling, emFlowChart, emDrawing, emInteractive };

enum TVagrelOption : std::int32_t { loUniqueID, loUndoRedo, loBackImageLayer, loBackImageMap };

/// What a document is doing and what it owes its observers.
enum TVagrelState : std::int32_t {
    lsModified,
    lsUpdate,
    lsUpdateMeasure,
    lsCalc,
    lsCalcNoUpdate,
    lsReading,
    lsUpdating,
    lsNoPaint,
    lsPaste,
    lsPrint
};

/// What `Clear` takes away.
enum TKSLClear : std::int32_t {
    cleAll,
    cleItems,
    cleSelection,
    cleLayers,
    cleBaseLayer,
    cleCounters,
    cleSymbols,
    cleAskList,
    cleValList,
    cleUndoRedo,
    clePreview,
    cleDimStyles,
    cleBaseStyle
};

/// What an observer is.
enum TKSDestUpdate : std::int32_t { duEditor, duInspector, duPreview, duSymbol };

/// What observers are told.
enum TKSChange : std::int32_t {
    chLabelDef,
    chBackSurf,
    chAligns,
    chMeasure,
    chPropItem,
    chUnits,
    chPaint,
    chDraw,
    chSelect,
    chScrollSelect,
    chClearSelect,
    chCursor,
    chSelCur,
    chInspect,
    chEditInspect,
    chEndInspect,
    chInspectPoint,
    chText,
    chChText,
    chPickSel,
    chSelSymbol
};

/// Options of layers and items.
enum TKSLayerOp : std::int32_t {
    lopVisible,
    lopPrint,
    lopSelectable,
    lopExport,
    lopBox,
    lopImage,
    lopMap,
    lopPrintBack,
    lopExportBack
};

enum TKSLMeasureType : std::int32_t {
    mtPaperWidth,
    mtPaperHeight,
    mtLabelWidth,
    mtLabelHeight,
    mtMarginLeft,
    mtMarginTop,
    mtGapHorz,
    mtGapVert
};

/// Shapes of a label.
enum TVagrelType : std::int32_t { ltRect, ltCircle };

/// Backgrounds of a label.
enum TKSLBackStyle : std::int32_t { biNone, biImage, biGradHor, biGradVer, biGraCircle, biHalf1, biHalf2, biQuarter };

enum TKSLPrinterOrientation : std::int32_t { poPortrait, poLandscape };

/// Why an item is read.
enum TKSLReadType : std::int32_t { rdNormal, rdPaste, rdPreview };

/// Which coordinate a position command holds.
enum TKSLPosType : std::int32_t { ptX, ptY, ptXY, ptRadio, ptWidth, ptHeight };

enum TKSLObjectAlign : std::int32_t { oaLeft, oaTop, oaRight, oaBottom };

/// Axes of alignment.
enum TKSLAlignType : std::int32_t { anHorz, anVert };

// Items

/// Item types, as stored in every file.
enum TKSLItemType : std::int32_t {
    itUndefined,
    itPoint,
    itLine,
    itArrowLine,
    itPolyLine,
    itArc,
    itRectangle,
    itPolygon,
    itCircle,
    itEllipse,
    itText,
    itPara,
    itBarcode,
    itPDF417,
    itDataMatrix,
    itQRCode,
    itImage,
    itFlow,
    itLink,
    itTable,
    itPolyText,
    itRank,
    itNutriScore,
    itLevel,
    itSymbol,
    itBezier,
    itDim,
    itSector,
    itPackage,
    itRichText
};

enum TKSLItemState : std::int32_t { isNormal, isSelected, isRef };

/// What a move takes along.
enum TKSLMoveOpt : std::int32_t {
    moAll,
    moLeft,
    moRight,
    moTop,
    moBottom,
    moTopLeft,
    moTopRight,
    moBotLeft,
    moBotRight
};

enum TKSLSnap : std::int32_t {
    snPoint,
    snGrid,
    snMiddle,
    snCenter,
    snEnd,
    snRefSymbol,
    snCross,
    snTangent,
    snPerpendicular
};

/// Marker shapes of a snap reference.
enum TKSRefType : std::int32_t { rtyRect, rtyCircle, rtyCross };

/// Place of a label along a line.
enum TKSLTextPos : std::int32_t { tpAbove, tpBelow, tpMiddle, tpMiddleRemove, tpHorz, tpVert };

/// Kinds of dimension.
enum TKSDimType : std::int32_t {
    dmtHorz,
    dmtVert,
    dmtAligned,
    dmtRadial1,
    dmtRadial2,
    dmtDiameter1,
    dmtDiameter2,
    dmtAngle
};

enum TKSLRadialStyle : std::int32_t { rs01, rs02, rs03, rs04 };

enum TKSLImgType : std::int32_t { itNone, itJpeg, itPng, itGif };

enum TKSLImgFilter : std::int32_t { ifNone, ifGrayScale, ifBlackWhite };

enum TKSLImgAlign : std::int32_t { iaLeftTop, iaCenter, iaRightBottom };

enum TKSLFrame : std::int32_t { pfNone, pfRectangle, pfCircle, pfCropCircle };

enum TKSLRankType : std::int32_t { rtSquare, rtCircle, rtStar, rtRhombus };

enum TKSLRankPos : std::int32_t { rpHorzLeft, rpHorzRight, rpVertLeft, rpVertRight };

enum TKSLNutriType : std::int32_t { ntStyle1, ntStyle2 };

enum TKSLLevelType : std::int32_t { ltFluidHorz, ltFluidVert, ltRadialHorz, ltRadialVert };

/// Grid lines of a table.
enum TVGRGrid : std::int32_t { gtNone, gtVert, gtHorz, gtBoth };

enum TKSLRowType : std::int32_t { rwHead, rwRow, rwFoot };

enum TKSLPolyType : std::int32_t { poText, poBarcode, poQR, poDataMatrix };

/// Outlines of a flow shape.
enum TKSLFlowType : std::int32_t {
    ftTerminator,
    ftProcess,
    ftDocument,
    ftMultiDocument,
    ftDecision,
    ftData,
    ftDatabase,
    ftPredefined,
    ftManualInput,
    ftManualOperation,
    ftPreparation,
    ftEllipse,
    ftStart,
    ftStep,
    ftEnd
};

/// Routes of a link.
enum TKSLinkType : std::int32_t {
    ltDirLine,
    ltLeftRightTopBottom,
    ltTopBottomLeftRight,
    ltStepLineTwoPto,
    ltArc,
    ltCurve,
    ltPolyline,
    ltRoundCorner
};

enum TKSLPackageStyle : std::int32_t {
    psWireFrameNoDim,
    psWireFrameDim,
    poSolidNoDim,
    poSolidDim,
    poPartDrill,
    poPartDrillDim
};

/// Linear symbologies.
enum TKSLBarType : std::int32_t {
    btEAN13,
    btEAN8,
    btUPCA,
    btUPCE0,
    btCODE39,
    btCODE39EX,
    btCODE93,
    btCODE93EX,
    btCODABAR,
    btEAN128A,
    btEAN128B,
    btEAN128C,
    btEAN128AUTO,
    btCODE128A,
    btCODE128B,
    btCODE128C,
    btCODE128AUTO,
    btINTER_25,
    btINDUS_25,
    btMATRIX_25,
    btCODE11,
    btMSI,
    btPOSTNET
};

// Data

/// Kinds of data source.
enum TKSLDataType : std::int32_t { dtyNone, dtyCustom, dtyDataset, dtyJson, dtyCsv };

enum TKSLFieldType : std::int32_t { ftString, ftBool, ftInt, ftInt64, ftFloat, ftDateTimeFloat, ftBase64, ftBlobImg };

/// How an item is bound to data.
enum TKSLFillType : std::int32_t {
    ftNone,
    ftField,
    ftCounter,
    ftJson,
    ftCsv,
    ftAsk,
    ftList,
    ftFieldCount,
    ftJsonCount,
    ftCsvCount,
    ftImg64
};

enum TKSLCsvSep : std::int32_t { scvNone, scvSemicolon, scvComma, scvTabulator, scvSpace };

/// `scqQuotes` is the single quote.
enum TKSLCsvQuote : std::int32_t { scqNone, scqQuotes, scqDoubleQuotes };

/// Calculations over a detail.
enum TKSLFooter : std::int32_t { foNone, foCount, foMin, foMax, foSum, foMean, foMedian, foVariance, foStdDev };

enum TKSLAskType : std::int32_t { atText, atInteger, atNumber, atDateTime };

// The editor

/// What the user is doing.
enum TKSLEdAction : std::int32_t {
    eaNone,
    eaSelection,
    eaMove,
    eaPoint,
    eaLine,
    eaArrowLine,
    eaRectangle,
    eaPolyline,
    eaArc,
    eaPolygon,
    eaBezier,
    eaCirclePR,
    eaCircle2P,
    eaCircle3P,
    eaEllipse,
    eaText,
    eaEdText,
    eaMoveText,
    eaParagraph,
    eaRichText,
    eaTrim,
    eaJoin,
    eaExtend,
    eaEquidist,
    eaBarcode,
    eaPDF417,
    eaDataMatrix,
    eaQRCode,
    eaImage,
    eaFlow,
    eaLink,
    eaPolyLink,
    eaTable,
    eaPolyText,
    eaRank,
    eaNutriScore,
    eaLevel,
    eaSymbol,
    eaDim,
    eaDimRad1,
    eaDimRad2,
    eaDimDia1,
    eaDimDia2,
    eaSectorPR,
    eaSector2P,
    eaSector3P,
    eaPackage,
    eaDimAng
};

/// Which pick of the action comes next.
enum TKSLEdState : std::int32_t {
    edPickPoint,
    edSelectDrag,
    edPickFirst,
    edPickSecond,
    edPickThird,
    edPickNext,
    edPickRadio,
    edPickCenter,
    edPickRadioX,
    edPickRadioY,
    edEnd,
    edEditing,
    edPickRef,
    edPickNextRef,
    edFirstRef,
    edSecondRef,
    edPick1Distance,
    edPick2Distance,
    edTrim,
    edExtend,
    edEquidist,
    edPackage,
    edPickSide,
    edPickCircle
};

enum TKSLStEditor : std::int32_t { seDraw, seDrag, seSelect, seEditProp };

/// Rubber-band previews.
enum TKSLDrawType : std::int32_t {
    dtNone,
    dtSelRect,
    dtPoint,
    dtLine,
    dtPolyline,
    dtRect,
    dtCircle,
    dtCircle2P,
    dtCircle3P,
    dtArc3P,
    dtText,
    dtEllipse,
    dtDiamond,
    dtDocument,
    dtTerminator,
    dtData,
    dtLink,
    dtPolyLink,
    dtHexagon,
    dtFlowEllipse,
    dtStart,
    dtStep,
    dtEnd,
    dtDim,
    dtDimRad1,
    dtDimRad2,
    dtDimDia1,
    dtDimDia2,
    dtSector
};

/// What a drag moves.
enum TKSLMoveType : std::int32_t {
    mtNone,
    mtObjects,
    mtRadio,
    mtLinkCurve,
    mtBezier,
    mtBezierCtrl,
    mtPoint,
    mtPolyPoint,
    mtRadioX,
    mtRadioY,
    mtArc,
    mtNW,
    mtN,
    mtNE,
    mtW,
    mtE,
    mtSW,
    mtS,
    mtSE,
    mtText,
    mtDispWidth
};

/// Kinds of handle.
enum TKSLSelType : std::int32_t {
    stNone,
    stData,
    stPoint,
    stSizePoint,
    stFixedPoint,
    stPolyPoint,
    stBezier,
    stBezierCtrl,
    stSizeRectNW,
    stSizeRectN,
    stSizeRectNE,
    stSizeRectW,
    stSizeRectE,
    stSizeRectSW,
    stSizeRectS,
    stSizeRectSE,
    stFixedRect,
    stRefLine,
    stCenter,
    stCenterCircle,
    stRadio,
    stRadioX,
    stRadioY,
    stArcLink,
    stRect,
    stAlign,
    stArc,
    stDispWidth
};

enum TKSLInputType : std::int32_t { intNone, intText, intFloat, intInt };

/// Keys and buttons held during a pointer event.
enum TShift : std::int32_t { ssShift, ssAlt, ssCtrl, ssLeft, ssRight, ssMiddle, ssDouble };

enum TMouseButton : std::int32_t { mbLeft, mbRight, mbMiddle };

// The inspector

/// Groups of rows that several families share.
enum TKSLInsTypeBase : std::int32_t {
    iyID,
    iyLayer,
    iyFont,
    iy1D,
    iy2D,
    iyBack,
    iyTwoPoint,
    iyPoint,
    iyBorder,
    iyAngle,
    iyData,
    iyRadio,
    iyCenter,
    iyAspect,
    iyFrame,
    iyMemo,
    iyPadding,
    iyAlignHorz,
    iyAlignHorzVert,
    iySize,
    iyWidthHeight,
    iyBackBarcode
};

/// Groups of rows of one kind of item.
enum TKSLInsType : std::int32_t {
    iyLine,
    iyDataImage,
    iyBarcode,
    iyText,
    iyImage,
    iyEmdeded,
    iyLink,
    iyTable,
    iyPolyText,
    iyRank,
    iyLevel,
    iyNutriScore,
    iyArrowLine,
    iySymbol,
    iySector,
    iyDim,
    iyDimStyle,
    iyPackage
};

/// Kinds of cell.
enum TKSLInsProp : std::int32_t {
    ipText,
    ipFloat,
    ipColor,
    ipBool,
    ipInt,
    ipImage,
    ipAlpha,
    ipCode,
    ipList,
    ipMemo,
    ipTable,
    ipPolyText,
    ipAlignHorz,
    ipAlignHorzVert,
    ipRank
};

/// Columns: the second digit counts the cells of the row, the first is the place.
enum TKSLInsCol : std::int32_t {
    ic11,
    ic12,
    ic22,
    ic13,
    ic23,
    ic33,
    ic14,
    ic24,
    ic34,
    ic44,
    ic15,
    ic25,
    ic35,
    ic45,
    ic55,
    ic223
};

/// Lists of choices.
enum TKSListProp : std::int32_t {
    lpLayer,
    lpFrame,
    lpLine,
    lpBarcode,
    lpFont,
    lpTerm,
    lpRank,
    lpRankPos,
    lpAngle,
    lpField,
    lpFieldImg,
    lpFilterImg,
    lpFieldInt,
    lpFieldNum,
    lpFieldTxt,
    lpMasterDetail,
    lpDetail,
    lpGridType,
    lpPolyText,
    lpLevel,
    lpTextPos,
    lpNutriVal,
    lpNutriType,
    lpDimStyle,
    lpBoxStyle
};

// Maps

/// Providers of map tiles.
enum TKSLMapProvider : std::int32_t {
    mpOpenStreetMap,
    mpCartoDB,
    mpESRI,
    mpOpenTopo,
    mpSIGPAC,
    mpIGNBase,
    mpIGNPNOA,
    mpGoogleRoad,
    mpGoogleSatellite,
    mpGoogleTerrain,
    mpGoogleHybrid,
    mpHereMapsSatellite,
    mpCartoDark,
    mpCartoVoyager
};

enum TKSLMapServiceType : std::int32_t { mstTiles, mstWMS, mstWMTS };

/// Where a composed map goes.
enum TKSLGMLMapTarget : std::int32_t { gmtLayerBackground, gmtImageElement };

using TVagrelOptions = TKSLSet<TVagrelOption>;
using TVagrelStateOptions = TKSLSet<TVagrelState>;
using TKSLClearSet = TKSLSet<TKSLClear>;
using TKSLayerOpts = TKSLSet<TKSLayerOp>;
using TKSLAlignTypes = TKSLSet<TKSLAlignType>;
using TKSLInpectorBaseTypes = TKSLSet<TKSLInsTypeBase>;
using TKSLInpectorTypes = TKSLSet<TKSLInsType>;
using TShiftState = TKSLSet<TShift>;
using TKSLEdActions = TKSLSet<TKSLEdAction, std::uint64_t>;
using TKSLMapProviders = TKSLSet<TKSLMapProvider>;

/// The name of an item type, as "Line"; "None" for a value that is no type.
std::u16string_view NameItem(TKSLItemType type);

/// The number of points with which an item of this type starts; 0 for the types whose points come from their data, 1
/// for a value that is no type.
int NumPointsItem(TKSLItemType type);

/// The rotation that a painter applies, in degrees: 0, -90, -180, -270.
int DegAngle(TKSLAngle angle);

/// The same in radians.
float PrintAngle(TKSLAngle angle);

} // namespace vagrel
