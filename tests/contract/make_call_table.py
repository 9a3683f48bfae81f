#!/usr/bin/env python3
"""Writes the call table of the contract sweep from the public header.

Every function the header declares becomes one entry: a thunk that calls it
with arguments taken from a sweep context (tests/contract/sweep_context.h),
and a description of its image operands that the sweep uses to lay out
guarded buffers. Each argument is derived from its parameter name and type;
the library frame (allocator, threads, version, constants) has a small table
of its own. A declaration this script cannot read, or a parameter it does
not know, stops the build: no function is left out silently.

usage: make_call_table.py include/zeli.h out.inc (the area headers it includes are read too)
"""
import os
import re
import sys

ELEMENTS = {  # type suffix: (C type, bytes, floating point)
    '8u': ('Zel8u', 1, False), '8s': ('Zel8s', 1, False), '16u': ('Zel16u', 2, False), '16s': ('Zel16s', 2, False),
    '32s': ('Zel32s', 4, False), '32f': ('Zel32f', 4, True), '16sc': ('Zel16sc', 4, False),
    '32sc': ('Zel32sc', 8, False), '32fc': ('Zel32fc', 8, True), '64f': ('Zel64f', 8, True),
    '32u': ('Zel32u', 4, False), '24u': ('Zel8u', 3, False),  # palette entries; 24u: three bytes a pixel
    '1u': ('Zel8u', 1, False),  # 1-bit images: the sweep gives them a byte a pixel, more than they use
}

# Families that check their steps; the others trust them (see the header's
# family comments). A callable takes (type suffix, layout).
STEP_CHECKS = {
    'Set': lambda t, lay: False,
    'Copy': lambda t, lay: False,
    'CopyManaged': lambda t, lay: False,
    'Dup': lambda t, lay: False,
    'Transpose': lambda t, lay: False,
    'SwapChannels': lambda t, lay: lay in ('C3', 'AC4', 'C3I', 'C4I'),
    'MulScale': lambda t, lay: True,
    'MulCScale': lambda t, lay: True,
    'Div': lambda t, lay: True,
    'Div_Round': lambda t, lay: True,
    'DivC': lambda t, lay: True,
}
# Border members: the destination is the ROI (the source size) grown by
# BORDER pixels on every side, with top = left = BORDER; in place, the
# pointer lies BORDER pixels and rows inside that grown rectangle.
BORDER_FAMILIES = ('CopyConstBorder', 'CopyReplicateBorder', 'CopyWrapBorder')
BORDER = 3
for fam in BORDER_FAMILIES:
    STEP_CHECKS[fam] = lambda t, lay: True
for fam in ('Add', 'AddC', 'Sub', 'SubC', 'Mul', 'MulC'):
    STEP_CHECKS[fam] = lambda t, lay: t in ('16sc', '32fc')
for fam in ('And', 'AndC', 'Or', 'OrC', 'Xor', 'XorC', 'Not', 'LShiftC', 'RShiftC'):
    STEP_CHECKS[fam] = lambda t, lay: True
FIXED_FILTERS = ('SobelHoriz', 'SobelVert', 'SobelHorizMask', 'SobelVertMask', 'SobelHorizSecond',
                 'SobelVertSecond', 'SobelCross', 'PrewittHoriz', 'PrewittVert', 'ScharrHoriz', 'ScharrVert',
                 'RobertsDown', 'RobertsUp', 'Laplace', 'Gauss', 'Hipass', 'Lowpass', 'Sharpen')
for fam in FIXED_FILTERS:
    STEP_CHECKS['Filter' + fam] = lambda t, lay: True
# Medians: a mask code (Horiz and Vert with their own pair of codes), an odd
# rectangle with an anchor inside it, or a centre weight.
MEDIAN_CODES = {'FilterMedianHoriz': 'MaskCheck::horiz', 'FilterMedianVert': 'MaskCheck::vert'}
for fam in ('Median', 'MedianHoriz', 'MedianVert', 'MedianCross', 'MedianColor', 'MedianWeightedCenter3x3'):
    STEP_CHECKS['Filter' + fam] = lambda t, lay: True
# Thresholds, comparisons and Otsu check their steps (Otsu: against the width).
THRESHOLDS = ('Threshold', 'Threshold_LT', 'Threshold_GT', 'Threshold_Val', 'Threshold_LTVal', 'Threshold_GTVal',
              'Threshold_LTValGTVal')
COMPARISONS = ('Compare', 'CompareC', 'CompareEqualEps', 'CompareEqualEpsC')
for fam in THRESHOLDS + COMPARISONS + ('ComputeThreshold_Otsu',):
    STEP_CHECKS[fam] = lambda t, lay: True
# How a member treats its comparison op: not at all; 0 and 4 only, tested
# after the other checks (Threshold) or before them (Threshold_Val); or any
# op outside 0..4 makes a call that writes nothing and succeeds (Compare).
OP_CHECKS = {'Threshold': 'OpCheck::thresholdLast', 'Threshold_Val': 'OpCheck::thresholdFirst',
             'Compare': 'OpCheck::silent', 'CompareC': 'OpCheck::silent'}
# Constant arrays: the context slot each parameter name draws from.
LIMIT_SLOTS = {'threshold': 1, 'thresholdLT': 1, 'thresholdGT': 2, 'valueLT': 3, 'valueGT': 4}

# User-kernel filters check their steps against the window (or the width);
# the sweep's kernels always fit the steps it passes.
LINEAR_FILTERS = ('Filter', 'Filter32f', 'Filter_Round16s', 'Filter_Round32f', 'Filter_Round32s', 'FilterRow',
                  'FilterRow32f', 'FilterColumn', 'FilterColumn32f', 'DecimateFilterRow', 'DecimateFilterColumn')
for fam in LINEAR_FILTERS:
    STEP_CHECKS[fam] = lambda t, lay: True
KERNEL_TYPES = ('Zel32s', 'Zel32f', 'Zel64f', 'Zel16s')

# Float Sobel members with a mask code take any value other than 33 as 5x5.
LENIENT_MASKS = ('FilterSobelHorizMask', 'FilterSobelVertMask', 'FilterSobelHorizSecond',
                 'FilterSobelVertSecond', 'FilterSobelCross')
for fam in ('Abs', 'Sqr', 'Sqrt', 'Ln', 'Exp', 'Complement'):
    STEP_CHECKS[fam] = lambda t, lay: True
# Look-up tables check their steps; palettes do not.
for fam in ('LUT', 'LUT_Linear', 'LUT_Cubic'):
    STEP_CHECKS[fam] = lambda t, lay: True
for fam in ('LUTPalette', 'LUTPaletteSwap'):
    STEP_CHECKS[fam] = lambda t, lay: False
# Curves of the look-up tables span each source type's range (32f: the
# sweep's pixel values); the context scales its curve shapes to it.
CURVE_RANGES = {'8u': (0, 256), '16u': (0, 65536), '16s': (-32768, 32768), '32f': (-1000, 1000)}
CURVE_SLOTS = {'pValues': 0, 'pLevels': 1}
# Alpha compositing: AC4 alpha is read and written; only the colour-key
# members check their steps.
ALPHA_FAMILIES = ('AlphaComp', 'AlphaCompC', 'AlphaPremul', 'AlphaPremulC', 'AlphaCompColorKey')
for fam in ALPHA_FAMILIES:
    STEP_CHECKS[fam] = lambda t, lay: False
for fam in ('CompColorKey', 'AlphaCompColorKey'):
    STEP_CHECKS[fam] = lambda t, lay: True

# Statistics: the reductions trust their steps; CountInRange checks its step
# (before the size) and MinEvery/MaxEvery theirs. Their results go through
# output pointers (OUTPUTS); CountInRange's bounds must not cross.
STATS_REDUCTIONS = ('Sum', 'Mean', 'Min', 'Max', 'MinMax', 'MinIndx', 'MaxIndx')
for fam in STATS_REDUCTIONS:
    STEP_CHECKS[fam] = lambda t, lay: False
for fam in ('CountInRange', 'MinEvery', 'MaxEvery'):
    STEP_CHECKS[fam] = lambda t, lay: True
LIMIT_SLOTS.update({'lowerBound': 1, 'upperBound': 2})
OUTPUTS = ('pSum', 'pMean', 'pMin', 'pMax', 'pIndexX', 'pIndexY', 'counts')
CROSSABLE = ('Threshold_LTValGTVal', 'CountInRange')
# Conversions check their steps, except the bit packing (NO_STEP_CHECK).
for fam in ('Convert', 'Scale'):
    STEP_CHECKS[fam] = lambda t, lay: True
NO_STEP_CHECK = ('zeliConvert_8u1u_C1R',)
# Scale's range: a valid one (the empty range is tested by the family's tests).
RANGE_VALUES = {'vMin': '-10.0f', 'vMax': '300.0f'}
# Minimum and maximum filters and morphology check their steps; the
# morphology masks (pMask) are dense byte arrays without a step.
MORPHOLOGY = ('Dilate', 'Erode', 'Dilate3x3', 'Erode3x3')
for fam in ('FilterMin', 'FilterMax') + MORPHOLOGY:
    STEP_CHECKS[fam] = lambda t, lay: True

# The library frame: functions without image operands.
FRAME = [
    (r'zeliMalloc_(\w+)_(C1|C2|C3|C4|AC4)$', 'malloc'),
    (r'zeliFree$', 'free'),
    (r'zelSetNumThreads$', 'setThreads'),
    (r'zelGetNumThreads$', 'getIntOut'),
    (r'zelGetMaxCacheSizeB$', 'getIntOut'),
    (r'zeliGetLibVersion$', 'version'),
    (r'zelConstantOfNAN_(32f|64f)$', 'nan'),
    (r'zeliDotProdCol_32f_L2$', 'dotProdCol'),
    (r'zeliFilter(Round)?GetBufSize\w*$', 'bufferSize'),
]

STEP_OF = {'pSrc': 'srcStep', 'pSrc1': 'src1Step', 'pSrc2': 'src2Step', 'pDst': 'dstStep',
           'pSrcDst': 'srcDstStep', 'pMask': 'maskStep'}


def fail(message):
    sys.exit('make_call_table.py: ' + message)


def layout_parts(layout):
    """'C3P3' -> ['C3', 'P3']; a trailing C (channel of interest) is kept apart."""
    coi = layout.endswith('C') and not re.fullmatch(r'(AC4|AC1|AP4|C\d|P\d)+', layout)
    body = layout[:-1] if coi else layout
    body = body.replace('A0', '')  # C3A0C4: three channels to four, the alpha one filled
    parts = re.findall(r'AC4|AC1|AP4|C\d|P\d', body)
    if ''.join(parts) != body or not parts:
        fail('layout %s not understood' % layout)
    return parts, coi


def operand(part, role, coi, family, order_len):
    """(channels, writable-channel mask, channel offset, planes) of one operand."""
    n = int(part[-1])
    if part.startswith('P') or part == 'AP4':
        return 1, 1, 0, n
    if part == 'AC1':
        return 1, 1, 0, 0
    if part == 'AC4':
        return 4, 0b1111 if family in ALPHA_FAMILIES else 0b0111, 0, 0
    if coi:
        return n, 0b0010, 1, 0  # the pointer addresses channel 1
    return n, (1 << n) - 1, 0, 0


def image_entry(name, params):
    m = re.fullmatch(r'zeli(\w+?)_(\d+[a-z]+?)(?:\d+[a-z]+)?_([A-Z0-9]+?)(M?)(I?)R(Sfs)?', name)
    if not m:
        fail('cannot read the name ' + name)
    family, tsuf, layout, masked, inplace = m.group(1), m.group(2), m.group(3), m.group(4), m.group(5)
    if tsuf not in ELEMENTS:
        fail('element type %s of %s unknown' % (tsuf, name))
    ctype, ebytes, isfloat = ELEMENTS[tsuf]
    if family not in STEP_CHECKS:
        fail('family %s of %s has no step rule here' % (family, name))
    parts, coi = layout_parts(layout)
    src_part, dst_part = parts[0], parts[-1]
    # Copy C1C3/C1C4 writes one channel (pDst points at it); C3C1/C4C1 read one.
    one_channel_dst = family == 'Copy' and src_part == 'C1' and dst_part in ('C3', 'C4')
    one_channel_src = family == 'Copy' and dst_part == 'C1' and src_part in ('C3', 'C4')

    # Widening members (8u16s) write the second type.
    dst_type = re.fullmatch(r'zeli\w+?_\d+[a-z]+?(\d+[a-z]+)?_.*', name).group(1) or tsuf
    if family in COMPARISONS:
        dst_type = '8u'  # one 0/255 byte per pixel
    dctype, debytes, disfloat = ELEMENTS[dst_type]
    ops, args, nulls, steps = [], [], [], []
    rnd = False
    eps = False
    out_value = False
    mask = 'MaskCheck::none'
    order = 0
    kernel_args = divisor = factor = False
    for ptype, pname, arr in params:
        base = pname
        if base == 'pMask' and family in MORPHOLOGY:
            args.append('c.morphMask()')
            nulls.append('{"pMask", -7, -1}')
            continue
        if base in STEP_OF:
            idx = len(ops)
            is_dst = base in ('pDst', 'pSrcDst')
            if base == 'pMask':
                ch, wmask, coff, planes, el, fl, is_dst = 1, 0, 0, 0, 1, False, False
            else:
                part = dst_part if is_dst else src_part
                ch, wmask, coff, planes = operand(part, is_dst, coi, family, 0)
                if is_dst and family in COMPARISONS:
                    ch, wmask = 1, 1
                if is_dst and one_channel_dst:
                    wmask, coff = 0b0010, 1
                if not is_dst and one_channel_src:
                    coff = 1
                if family == 'SwapChannels' and layout == 'C3C4' and is_dst:
                    wmask = 0b1111 if tsuf == '8u' else 0b0111  # order {2,1,0,3}
                if not is_dst:
                    wmask = 0
                el, fl = (debytes, disfloat) if is_dst else (ebytes, isfloat)
            if planes and not arr:
                fail('%s: planar operand %s is not an array' % (name, pname))
            transposed = family == 'Transpose' and is_dst and not inplace
            grown = ''
            if family in BORDER_FAMILIES and is_dst:
                grown = ', %d, %d' % (BORDER, BORDER if inplace else 0)
            ops.append('{"%s", %d, %d, %d, %d, %d, %s, %s, %s, "%s"%s}' % (
                pname, el, ch, wmask, coff, planes, 'true' if is_dst else 'false',
                'true' if fl else 'false', 'true' if transposed else 'false', STEP_OF[base], grown))
            cast = ('const ' if ptype.startswith('const') else '') + (
                'Zel8u' if base == 'pMask' else dctype if is_dst else ctype)
            if planes:
                args.append('c.planes<%s>(%d)' % (cast, idx))
                nulls.append('{"%s", %d, -1}' % (pname, idx))
                for k in range(planes):
                    nulls.append('{"%s[%d]", %d, %d}' % (pname, k, idx, k))
            else:
                args.append('c.ptr<%s>(%d)' % (cast, idx))
                nulls.append('{"%s", %d, -1}' % (pname, idx))
            continue
        if pname.endswith('Step'):
            owners = [i for i, o in enumerate(ops) if re.search(r'"%s"(, \d+, \d+)?}$' % pname, o)]
            if len(owners) != 1:
                fail('%s: step %s belongs to no image operand' % (name, pname))
            args.append('c.step(%d)' % owners[0])
            steps.append(owners[0])
            continue
        if pname in ('roi', 'roiSize', 'srcRoiSize') and ptype == 'ZeliSize':
            args.append('c.roi')
        elif pname == 'dstRoiSize' and ptype == 'ZeliSize' and family in BORDER_FAMILIES:
            args.append('c.dstRoi')
        elif pname in ('topBorderHeight', 'leftBorderWidth') and ptype == 'int' and family in BORDER_FAMILIES:
            args.append('c.top' if pname.startswith('top') else 'c.left')
        elif pname == 'value' and ptype.replace('const ', '') == 'Zel32u':
            # shift counts: unsigned, whatever the element type
            if arr is not None:
                args.append('c.values<Zel32u>()')
                nulls.append('{"value[]", -2, -1}')
            else:
                args.append('c.scalar<Zel32u>()')
        elif pname == 'value' and arr is not None:
            args.append('c.values<%s>()' % ctype)
            nulls.append('{"value[]", -2, -1}')
        elif pname == 'value':
            args.append('c.scalar<%s>()' % ctype)
        elif pname in ('alpha', 'alpha1', 'alpha2') and ptype == ctype:
            args.append('c.scalar<%s>()' % ctype)
        elif pname == 'alphaType' and ptype == 'int':
            args.append('c.alphaType')
        elif pname == 'colorKey' and arr is not None:
            args.append('c.values<%s>()' % ctype)
            nulls.append('{"colorKey[]", -2, -1}')
        elif pname == 'colorKey' and ptype == ctype:
            args.append('c.scalar<%s>()' % ctype)
        elif pname == 'val' and ptype == 'Zel8u':
            args.append('c.val')
        elif pname == 'scaleFactor' and ptype == 'int':
            args.append('c.scaleFactor')
        elif pname == 'roundMode' and ptype == 'ZelRoundingMode':
            # Convert takes every mode (other values round half away).
            args.append('static_cast<ZelRoundingMode>(c.rndMode)')
        elif pname == 'hint' and ptype == 'ZelAccuracyHint':
            args.append('static_cast<ZelAccuracyHint>(c.rndMode)')
        elif pname in RANGE_VALUES and ptype == 'Zel32f':
            args.append(RANGE_VALUES[pname])
        elif pname in ('dstBitOffset', 'srcBitOffset') and ptype == 'int':
            args.append('c.rndMode + 3')
        elif pname == 'rndMode' and ptype == 'ZelRoundingMode':
            args.append('static_cast<ZelRoundingMode>(c.rndMode)')
            rnd = True
        elif pname == 'dstOrder' and ptype == 'const int':
            order = int(arr)
            args.append('c.order()')
            nulls.append('{"dstOrder", -3, -1}')
        elif pname == 'mask' and ptype == 'ZeliMaskCode':
            args.append('static_cast<ZeliMaskCode>(c.mask)')
            mask = 'MaskCheck::lenient' if family in LENIENT_MASKS and tsuf == '32f' else 'MaskCheck::strict'
            mask = MEDIAN_CODES.get(family, mask)
        elif pname == 'maskSize' and ptype == 'ZeliSize' and family == 'FilterMedian':
            args.append('c.maskSize')
            mask = 'MaskCheck::oddRect'
        elif pname == 'anchor' and ptype == 'ZeliPoint' and family == 'FilterMedian':
            args.append('c.anchor')
        elif pname == 'weight' and ptype == 'int':
            args.append('c.weight')
            mask = 'MaskCheck::weight'
        elif pname == 'maskSize' and ptype == 'ZeliSize':
            args.append('c.maskSize')
        elif pname == 'anchor' and ptype == 'ZeliPoint':
            args.append('c.anchor')
        elif pname == 'flags' and ptype == 'int':
            args.append('c.flags')
        elif pname in LIMIT_SLOTS and arr is not None:
            args.append('c.limits<%s>(%d)' % (ctype, LIMIT_SLOTS[pname]))
            nulls.append('{"%s[]", %d, -1}' % (pname, -10 - LIMIT_SLOTS[pname]))
        elif pname in LIMIT_SLOTS:
            args.append('c.limit<%s>(%d)' % (ctype, LIMIT_SLOTS[pname]))
        elif pname == 'cmpOp' and ptype == 'ZelCompareOp':
            args.append('static_cast<ZelCompareOp>(c.cmpOp)')
        elif pname == 'eps' and ptype == 'Zel32f':
            args.append('c.eps')
            eps = True
        elif pname in OUTPUTS and ptype in ('Zel64f', 'int', ctype):
            slot = sum(1 for n in nulls if n.startswith('{"out '))
            args.append('c.out<%s>(%d)' % (ptype, slot))
            nulls.append('{"out %s", %d, -1}' % (pname, -30 - slot))
            out_value = True
        elif pname == 'pThreshold' and ptype == 'Zel8u':
            args.append('c.outByte()')
            nulls.append('{"pThreshold", -4, -1}')
            out_value = True
        elif pname in CURVE_SLOTS and ptype in ('const Zel32s', 'const Zel32f'):
            lo, hi = CURVE_RANGES[tsuf]
            vtype = ptype.replace('const ', '')
            slot = CURVE_SLOTS[pname]
            if arr is not None:
                args.append('c.curves<%s>(%d, %s, %d, %d)' % (vtype, slot, arr, lo, hi))
                nulls.append('{"%s", %d, -1}' % (pname, -20 - slot))
                for k in range(int(arr)):
                    nulls.append('{"%s[%d]", %d, %d}' % (pname, k, -20 - slot, k))
            else:
                args.append('c.curve<%s>(%d, %d, %d)' % (vtype, slot, lo, hi))
                nulls.append('{"%s", %d, -1}' % (pname, -20 - slot))
        elif pname == 'nLevels' and ptype in ('int', 'const int'):
            if arr is not None:
                args.append('c.levelCounts()')
                nulls.append('{"nLevels", -22, -1}')
            else:
                args.append('c.levelCount()')
        elif pname == 'pTable':
            etype = ptype.replace('const ', '')
            if arr is not None:
                args.append('c.tables<%s>()' % etype)
                nulls.append('{"pTable", -23, -1}')
                for k in range(int(arr)):
                    nulls.append('{"pTable[%d]", -23, %d}' % (k, k))
            else:
                args.append('c.table<%s>()' % etype)
                nulls.append('{"pTable", -23, -1}')
        elif pname == 'nBitSize' and ptype == 'int':
            args.append('c.bitSize')
        elif pname == 'alphaValue' and ptype == 'int':
            args.append('c.alphaValue')
        elif pname == 'pKernel' and ptype.replace('const ', '') in KERNEL_TYPES:
            args.append('c.kernel<%s>()' % ptype.replace('const ', ''))
            nulls.append('{"pKernel", -5, -1}')
            kernel_args = True
        elif pname == 'kernelSize' and ptype == 'ZeliSize':
            args.append('c.kernelSize()')
        elif pname == 'kernelSize' and ptype == 'int':
            args.append('c.columnKernelLength()' if 'Column' in family else 'c.rowKernelLength()')
        elif pname == 'anchor' and ptype == 'ZeliPoint':
            args.append('ZeliPoint{c.anchorX, c.anchorY}')
        elif pname in ('xAnchor', 'yAnchor') and ptype == 'int':
            args.append('c.anchorX' if pname[0] == 'x' else 'c.anchorY')
        elif pname == 'divisor' and ptype == 'int':
            args.append('c.divisor')
            divisor = True
        elif pname == 'pBuffer' and ptype == 'Zel8u':
            args.append('c.workBuffer()')
            nulls.append('{"pBuffer", -6, -1}')
        elif pname == 'factor' and ptype == 'int':
            args.append('c.factor')
            factor = True
        else:
            fail('%s: parameter "%s %s" has no rule' % (name, ptype, pname))
    if len(steps) != len(ops):
        fail('%s: %d image operands but %d steps' % (name, len(ops), len(steps)))
    layout_key = layout + ('I' if inplace else '')
    checks_steps = STEP_CHECKS[family](tsuf, layout_key) and name not in NO_STEP_CHECK
    square = family == 'Transpose' and inplace == 'I'
    op_check = OP_CHECKS.get(family, 'OpCheck::none')
    crossable = family in CROSSABLE
    return ('{"%s", "%s", {%s}, {%s}, {%s}, %s, %s, %s, %d, %s, %s, %s, %s, %s, %s,\n'
            ' [](SweepContext& c) -> int { return %s(%s); }, %s, %s, %s},\n') % (
        name, family, ', '.join(ops), ', '.join(nulls), ', '.join(str(s) for s in steps),
        'true' if checks_steps else 'false', 'true' if rnd else 'false', mask, order,
        'true' if square else 'false', '"%s"' % layout, op_check, 'true' if eps else 'false',
        'true' if crossable else 'false', 'true' if out_value else 'false', name, ', '.join(args),
        'true' if kernel_args else 'false', 'true' if divisor else 'false', 'true' if factor else 'false')


def frame_entry(name, ret, kind):
    if kind == 'malloc':
        m = re.fullmatch(FRAME[0][0], name)
        ctype, ebytes, _ = ELEMENTS[m.group(1)] if m.group(1) in ELEMENTS else fail('type of ' + name)
        channels = 4 if m.group(2) == 'AC4' else int(m.group(2)[-1])
        return ('{"%s", FrameKind::malloc, %d, reinterpret_cast<void (*)()>('
                'static_cast<void* (*)(int, int, int*)>([](int w, int h, int* s) -> void* '
                '{ return %s(w, h, s); }))},\n') % (name, ebytes * channels, name)
    if kind == 'nan':
        return ('{"%s", FrameKind::nan, 0, reinterpret_cast<void (*)()>('
                'static_cast<bool (*)()>([] { auto v = %s(); return v != v; }))},\n') % (name, name)
    if kind == 'dotProdCol':
        return ('{"%s", FrameKind::dotProdCol, 0, reinterpret_cast<void (*)()>('
                'static_cast<ZelStatus (*)(const Zel32f* const*, const Zel32f*, int, Zel32f*, int)>(&%s))},\n') % (
            name, name)
    signature = {'free': 'void (*)(void*)', 'setThreads': 'ZelStatus (*)(int)',
                 'bufferSize': 'ZelStatus (*)(ZeliSize, int, int*)',
                 'getIntOut': 'ZelStatus (*)(int*)', 'version': 'const ZelLibraryVersion* (*)()'}[kind]
    return '{"%s", FrameKind::%s, 0, reinterpret_cast<void (*)()>(static_cast<%s>(&%s))},\n' % (
        name, kind, signature, name)


def read_header(path):
    """The header's text followed by the area headers it includes."""
    text = open(path).read()
    for area in re.findall(r'#include "(zeli/\w+\.h)"', text):
        text += read_header(os.path.join(os.path.dirname(path), area))
    return text


def main():
    header, out = sys.argv[1], sys.argv[2]
    text = read_header(header)
    text = re.sub(r'/\*.*?\*/', '', text, flags=re.S)
    declared = re.findall(r"^ZELAPI\b([^;]*);", text, flags=re.M)
    images, frames = [], []
    for decl in declared:
        m = re.fullmatch(r'\s*(.*?)\b(zel\w+)\s*\((.*)\)\s*', decl, re.S)
        if not m:
            fail('cannot read the declaration ' + ' '.join(decl.split()))
        ret, name, plist = m.group(1).strip(), m.group(2), ' '.join(m.group(3).split())
        kind = next((k for rx, k in FRAME if re.fullmatch(rx, name)), None)
        if kind:
            frames.append(frame_entry(name, ret, kind))
            continue
        if ret != 'ZelStatus':
            fail('%s returns %s, which the sweep cannot judge' % (name, ret))
        params = []
        for p in plist.split(','):
            pm = re.fullmatch(r'\s*(.+?)\s*\b(\w+)\s*(?:\[(\d*)\])?\s*', p)
            if not pm:
                fail('%s: parameter "%s" not understood' % (name, p))
            ptype = re.sub(r'[\s*]*(const)?[\s*]*$', '', pm.group(1)).strip()
            params.append((ptype, pm.group(2), pm.group(3)))
        images.append(image_entry(name, params))
    os.makedirs(os.path.dirname(os.path.abspath(out)), exist_ok=True)
    with open(out, "w") as f:
        f.write('// Written by tests/contract/make_call_table.py from include/zeli.h.\n')
        f.write('const std::vector<CallEntry> kCalls = {\n%s};\n' % ''.join(images))
        f.write('const std::vector<FrameEntry> kFrame = {\n%s};\n' % ''.join(frames))


if __name__ == '__main__':
    main()
