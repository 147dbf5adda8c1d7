#!/usr/bin/env python3
"""Drafts the Designer forms of the screens from their name tables.

    build/src/desktop/obsdesk_screen_names > names.txt
    src/desktop/tools/ui_draft.py names.txt src/desktop/forms

Each form is laid out right to left as the observer's register: the groups of
the screen in rows, a caption beside each box. Controls a layout below does not
place go to a hidden "ui_store" widget, so that every control keeps its one
widget. The drafts are checked in and edited in Designer from then on; this
script is not part of the build.
"""
import sys
from xml.sax.saxutils import escape

KIND = {0: 'TextBox', 1: 'ComboBox', 2: 'Label', 3: 'Frame', 4: 'Button', 5: 'Image', 6: 'OptionButton'}


def read_names(path):
    screens, cur = {}, None
    for line in open(path, encoding='utf-8'):
        line = line.rstrip('\n')
        if line.startswith('# '):
            cur = line[2:].split(' ')[0]
            screens[cur] = {}
            continue
        f = line.split('\t')
        if len(f) < 7:
            continue
        screens[cur][f[0]] = dict(kind=KIND[int(f[1])], frame=f[2], shown=f[3] == '1', mask=f[4] == '1',
                                  maxlen=int(f[5]), caption=f[6])
    return screens


# Boxes whose text is a report code: read left to right.
LTR = set()
MULTILINE = set()
WIDE = {}
# Buttons that show a picture of a board.
TILES = set()

# Properties a few widgets need beyond their kind's.
EXTRA = {
    ('FrmERR', 'Label1'): [('wordWrap', '<bool>true</bool>'), ('minimumWidth', '<number>320</number>'),
                           ('minimumHeight', '<number>48</number>')],
    ('FrmKashf', 'Text44'): [('minimumWidth', '<number>300</number>')],
    ('FrmDisplayKashf', 'Text44'): [('minimumWidth', '<number>300</number>')],
    ('FrmEntezar', 'Label1'): [('minimumWidth', '<number>260</number>'), ('alignment', '<set>Qt::AlignCenter</set>')],
}

# Captions of the entry boxes, shared by the entry screen and the browser.
CAPTIONS = {
    'Text1': 'ساعت UTC', 'txt1': 'ساعت و دقیقه', 'Combo5': 'نوع گزارش', 'Combo7': 'دیده‌بان کشیک',
    'Text48': 'iRiX', 'Text44': 'ایستگاه',
    'TXTYEARmi': 'سال', 'TXTMONTHMI': 'ماه', 'TXTDAYmi': 'روز',
    'TXTYEARsh': 'سال', 'TXTMONTHSH': 'ماه', 'TXTDAYsh': 'روز',
    'Text2': 'جهت باد', 'Text3': 'سرعت (m/s)', 'Text40': 'جهت متغیر از', 'Text39': 'تا',
    'TXTGUSTY': 'تندباد',
    'Text4': 'دید افقی (m)', 'TxtVM': 'کمترین دید', 'Text26': 'بیشترین دید',
    'CMbMAX': 'سوی بیشترین', 'CMbMIN': 'سوی کمترین',
    'Text5': 'کل ابر (اکتا)', 'Text12': 'دید قائم', 'Txt_NLC': 'لایه‌ها', 'TXT_QNT': 'QNT',
    'TEXTMIN': 'پایین‌ترین ابر',
    'Text27': 'دمای خشک', 'Text28': 'دمای تر', 'Text13': 'دمای فشارسنج', 'txtt12': 'دمای ۱۲ ساعت پیش',
    'Text29': 'نقطه شبنم', 'Text30': 'فشار بخار', 'Text31': 'رطوبت نسبی',
    'Text14': 'خواندن فشارسنج', 'Text41': 'فشارنگار', 'Text15': 'تصحیح', 'Text18': 'QFE',
    'Text19': 'QNH', 'Text20': 'QNH (inHg)', 'Text21': 'QFF', 'Text24': 'ارتفاع ۸۵۰',
    'Text38': 'مشخصه تغییرات',
    'Text59': 'کمینه', 'Text60': 'بیشینه',
    'Text50': 'بارش دوره', 'Text42': 'بارش', 'txtpast6': 'بارش ۶ ساعت', 'Text51': 'بارش کل',
    'Text53': 'بارش ۰۶ تا ۰۶',
    'Text32': '۵ سانتی', 'Text33': '۱۰ سانتی', 'Text34': '۲۰ سانتی', 'Text35': '۳۰ سانتی',
    'Text36': '۵۰ سانتی', 'Text37': '۱۰۰ سانتی',
    'Text43': 'بیشینه سطح زمین',
    'Text63': 'کمینه دمای آب', 'Text64': 'بیشینه دمای آب', 'Text65': 'آب افزوده (cc)',
    'Text66': 'تبخیر (mm)', 'Text67': 'باد روی تشت',
    'Text68': 'کمینه سطح زمین', 'Text69': 'برف کل (cm)', 'Text70': 'برف تازه (cm)', 'Image3': 'حالت زمین',
    'Text71': 'تابش کلی', 'Text72': 'تابش آسمان', 'Text73': 'تابش زمین',
    'Image1': 'هوای حاضر', 'Image2': 'W1', 'Image9': 'W2',
    'Image10': 'هوای حاضر', 'Image8': 'هوای اخیر', 'Image7': 'ساعت گذشته',
    'Text74': 'ملاحظات', 'txtSYN': 'سینوپ', 'TXTMET': 'متار', 'TXTSPE': 'اسپیسی',
    'TXTSEL': 'نوع گزارش', 'TXTNAM': 'دیده‌بان', 'Text45': 'نوع', 'Text46': 'نوع', 'Text47': 'نوع',
    'Text54': 'نوع', 'Text52': 'حالت زمین', 'TXTSCDATA': 'سطر SCDATA',
    'TXTWW4': 'هوای حاضر', 'TXTWW5': 'W1', 'TXTWW6': 'W2', 'TXTWW1': 'هوای حاضر', 'TXTWW3': 'هوای اخیر',
    'TXTWW2': 'ساعت گذشته',
    'Text6': 'مقدار', 'Combo1': 'نوع', 'Text7': 'ارتفاع (m)',
    'Text17': 'مقدار', 'Combo6': 'نوع', 'Text16': 'ارتفاع (m)',
    'Text23': 'مقدار', 'Combo9': 'نوع', 'Text22': 'ارتفاع (m)',
    'Text49': 'مقدار', 'Combo4': 'نوع',
}


class Form:
    def __init__(self, name, table, title):
        self.name, self.table, self.title = name, table, title
        self.placed, self.n = set(), 0

    def uid(self, stem):
        self.n += 1
        return 'ui_%s_%d' % (stem, self.n)

    def widget(self, name, ind):
        c = self.table[name]
        assert name not in self.placed, name
        self.placed.add(name)
        k = c['kind']
        props = []
        if k == 'TextBox':
            cls = 'QPlainTextEdit' if name in MULTILINE else 'QLineEdit'
            if cls == 'QLineEdit':
                width = WIDE.get(name, max(c['maxlen'], 5) * 9 + 22)
                props.append(('maximumWidth', '<number>%d</number>' % width))
            else:
                props.append(('minimumHeight', '<number>120</number>'))
        elif k == 'ComboBox':
            cls = 'QComboBox'
            props.append(('editable', '<bool>true</bool>'))
            props.append(('minimumWidth', '<number>%d</number>' % WIDE.get(name, 90)))
        elif k == 'Label':
            cls = 'QLabel'
            if c['caption']:
                props.append(('text', '<string>%s</string>' % escape(c['caption'])))
        elif k == 'Frame':
            cls = 'QGroupBox'
        elif k == 'Button':
            cls = 'QPushButton'
            props.append(('text', '<string>%s</string>' % escape(c['caption'])))
            if name in TILES:
                props.append(('minimumSize', '<size><width>64</width><height>56</height></size>'))
                props.append(('iconSize', '<size><width>36</width><height>36</height></size>'))
        elif k == 'Image':
            cls = 'QLabel'
            props.append(('frameShape', '<enum>QFrame::Box</enum>'))
            props.append(('alignment', '<set>Qt::AlignCenter</set>'))
            props.append(('minimumSize', '<size><width>44</width><height>40</height></size>'))
            props.append(('text', '<string>%s</string>' % escape(c['caption'])))
        else:
            cls = 'QRadioButton'
            props.append(('text', '<string>%s</string>' % escape(c['caption'])))
        if name in LTR:
            props.append(('layoutDirection', '<enum>Qt::LeftToRight</enum>'))
        props += EXTRA.get((self.name, name), [])
        return cls, props

    def emit_widget(self, cls, name, props, ind, inner=''):
        pad = ' ' * ind
        out = [pad + '<widget class="%s" name="%s">' % (cls, name)]
        for p, v in props:
            out.append(pad + ' <property name="%s">%s</property>' % (p, v))
        if inner:
            out.append(inner)
        out.append(pad + '</widget>')
        return '\n'.join(out)

    def control(self, name, ind):
        cls, props = self.widget(name, ind)
        return self.emit_widget(cls, name, props, ind)

    def caption(self, text, buddy, ind):
        props = [('text', '<string>%s</string>' % escape(text)), ('buddy', '<cstring>%s</cstring>' % buddy)]
        return self.emit_widget('QLabel', 'ui_cap_' + buddy, props, ind)

    def grid(self, rows, ind, lname):
        """rows: list of lists of cells; a cell is NAME, (CAPTION, NAME), ('@LABEL', NAME), a Group, or None."""
        pad = ' ' * ind
        out = [pad + '<layout class="QGridLayout" name="%s">' % lname,
               pad + ' <property name="spacing"><number>3</number></property>']
        for m in ('leftMargin', 'rightMargin', 'topMargin', 'bottomMargin'):
            out.append(pad + ' <property name="%s"><number>4</number></property>' % m)
        for r, row in enumerate(rows):
            col = 0
            for cell in row:
                if cell is None:
                    col += 1
                    continue
                if isinstance(cell, Group) or isinstance(cell, Box):
                    out.append(pad + ' <item row="%d" column="%d">' % (r, col))
                    out.append(cell.xml(self, ind + 2))
                    out.append(pad + ' </item>')
                    col += 1
                    continue
                if isinstance(cell, tuple):
                    cap, name = cell
                    out.append(pad + ' <item row="%d" column="%d">' % (r, col))
                    if cap.startswith('@'):
                        out.append(self.control(cap[1:], ind + 2))
                    else:
                        out.append(self.caption(cap, name, ind + 2))
                    out.append(pad + ' </item>')
                    col += 1
                    cell = name
                if cell.startswith('#'):
                    out.append(pad + ' <item row="%d" column="%d">' % (r, col))
                    out.append(self.emit_widget('QLabel', self.uid('head'),
                                                [('text', '<string>%s</string>' % escape(cell[1:]))], ind + 2))
                    out.append(pad + ' </item>')
                    col += 1
                    continue
                span = ''
                if cell.startswith('*'):
                    cell, span = cell[1:], ' colspan="%d"' % 20
                out.append(pad + ' <item row="%d" column="%d"%s>' % (r, col, span))
                out.append(self.control(cell, ind + 2))
                out.append(pad + ' </item>')
                col += 1
        out.append(pad + '</layout>')
        return '\n'.join(out)


class Group:
    """A frame of the screen (name is its Frame control) or a group of the form only."""

    def __init__(self, title, rows, name=None):
        self.title, self.rows, self.name = title, rows, name

    def xml(self, f, ind):
        name = self.name or f.uid('group')
        props = [('title', '<string>%s</string>' % escape(self.title))]
        if self.name in LTR:
            props.append(('layoutDirection', '<enum>Qt::LeftToRight</enum>'))
        if self.name:
            f.placed.add(self.name)
        inner = f.grid(self.rows, ind + 1, f.uid('grid'))
        return f.emit_widget('QGroupBox', name, props, ind, inner)


class Box:
    """Blocks side by side (first on the right), or one above the other."""

    def __init__(self, items, vertical=False, stretch=True):
        self.items, self.vertical, self.stretch = items, vertical, stretch

    def xml(self, f, ind):
        pad = ' ' * ind
        cls = 'QVBoxLayout' if self.vertical else 'QHBoxLayout'
        out = [pad + '<widget class="QWidget" name="%s">' % f.uid('row'),
               pad + ' <layout class="%s" name="%s">' % (cls, f.uid('lay')),
               pad + '  <property name="leftMargin"><number>0</number></property>',
               pad + '  <property name="rightMargin"><number>0</number></property>',
               pad + '  <property name="topMargin"><number>0</number></property>',
               pad + '  <property name="bottomMargin"><number>0</number></property>']
        for it in self.items:
            out.append(pad + '  <item>')
            if isinstance(it, str):
                out.append(f.control(it, ind + 3))
            else:
                out.append(it.xml(f, ind + 3))
            out.append(pad + '  </item>')
        if self.stretch:
            out.append(pad + '  <item><spacer name="%s"><property name="orientation"><enum>%s</enum></property></spacer></item>'
                       % (f.uid('spacer'), 'Qt::Vertical' if self.vertical else 'Qt::Horizontal'))
        out.append(pad + ' </layout>')
        out.append(pad + '</widget>')
        return '\n'.join(out)


def write_form(path, f, body):
    rows = [b.xml(f, 4) for b in body]
    left = [n for n in f.table if n not in f.placed]
    store = ''
    if left:
        cells = [[n] for n in left]
        store = ('   <item>\n    <widget class="QWidget" name="ui_store">\n'
                 '     <property name="visible"><bool>false</bool></property>\n'
                 + f.grid(cells, 5, 'ui_store_grid') + '\n    </widget>\n   </item>\n')
    xml = ['<?xml version="1.0" encoding="UTF-8"?>', '<ui version="4.0">', ' <class>%s</class>' % f.name,
           ' <widget class="QWidget" name="%s">' % f.name,
           '  <property name="windowTitle"><string>%s</string></property>' % escape(f.title),
           '  <property name="layoutDirection"><enum>Qt::RightToLeft</enum></property>',
           '  <layout class="QVBoxLayout" name="ui_root">']
    for r in rows:
        xml += ['   <item>', r, '   </item>']
    xml.append(store + '   <item><spacer name="ui_bottom"><property name="orientation"><enum>Qt::Vertical</enum></property></spacer></item>')
    xml += ['  </layout>', ' </widget>', ' <resources/>', ' <connections/>', '</ui>', '']
    open(path, 'w', encoding='utf-8').write('\n'.join(xml))


def auto_rows(f, frame, columns):
    """The controls of one frame in the screen's order, a caption beside each box that has one."""
    rows, row = [], []
    for n, c in f.table.items():
        if c['frame'] != frame or c['mask'] or n in f.placed:
            continue
        if c['kind'] == 'Frame':
            continue
        cell = (CAPTIONS[n], n) if n in CAPTIONS and f.name != 'FrmCode' else n
        row.append(cell)
        if len(row) == columns:
            rows.append(row)
            row = []
    if row:
        rows.append(row)
    return rows


def register_rows(f, browser):
    """The rows of the observer's register, shared by the entry screen and the browser."""
    t = f.table
    has = lambda n: n in t
    c = lambda n: ('', n)
    head = Box([
        Group('گزارش', [[c('TXTSEL') if browser else c('Combo5'), c('Text1'), c('txt1'), c('Text48')]]),
        Group('تاریخ میلادی', [[c('TXTYEARmi'), c('TXTMONTHMI'), c('TXTDAYmi')]]),
        Group('تاریخ شمسی', [[c('TXTYEARsh'), c('TXTMONTHSH'), c('TXTDAYsh')]]),
        Group('ایستگاه', [['Text44']]),
    ])
    nlc = [c('Txt_NLC')] + (['Cmb_NLC'] if has('Cmb_NLC') else []) + [c('TXT_QNT')]
    upper = Box([
        Group('باد', [[c('Text2'), c('Text3'), c('TXTGUSTY')],
                      [c('Text40'), c('Text39')],
                      [(('@Label98' if has('Label98') else 'تندباد روز'), 'Txttond'),
                       ('@Label96', 'Txtmaxwind')]]),
        Group('دید', [[c('Text4'), c('TxtVM')], [c('Text26')], [c('CMbMAX'), c('CMbMIN')]]),
        Group('ابر', [[c('Text5'), c('Text12')], nlc]),
        Group('دما و رطوبت', [[c('Text27'), c('Text28'), c('Text13')],
                             [c('Text29'), c('Text30'), c('Text31')],
                             [c('txtt12')]]),
        Group('بیشینه و کمینه', [[c('Text59')], [c('Text60')]], name='Frame15'),
    ])
    low_types = ('Text45', 'Text43', 'Text42') if browser else ('Combo1', 'Combo2', 'Combo3')
    cloud = Box([
        Group('ابرهای پایین', [[c('Text6'), c(low_types[0]), c('Text7')],
                               [None, 'Text8', None, low_types[1], None, 'Text9'],
                               [None, 'Text10', None, low_types[2], None, 'Text11']], name='Frame1'),
        Group('ابر میانی', [[c('Text17')], [c('Text47' if browser else 'Combo6')], [c('Text16')]], name='Frame2'),
        Group('ابر بالا', [[c('Text23')], [c('Text54' if browser else 'Combo9')], [c('Text22')]], name='Frame3'),
        Group('ابر پایین سینوپ', [[c('Text49')], [c('Text46' if browser else 'Combo4')]], name='Frame16'),
        Group('', [[('@Label42', 'txtmin')], ['Image6']]),
        Group('فشار', [[c('Text14')] + ([] if browser else [Group('', [[c('Text41')]], name='FraNegar')]) + [c('Text15')],
                       [c('Text18'), c('Text21')],
                       [c('Text19'), c('Text20')],
                       [c('Text24')]]),
        Group('تغییرات فشار', [[(('@Label17' if has('Label17') else 'مقدار تغییرات'), 'Text25')], [c('Text38')]]),
    ])
    rain = [['Labrain', c('Text50')] + ([] if browser else [c('Text42')]), [c('txtpast6'), c('Text51')], [c('Text53')]]
    ground_cells = [[c('Text68'), c('Text69')], [c('Text70'), c('Text52' if browser else 'Image3')]]
    lower = Box(([] if False else [Group('بارندگی', rain, name='Frame6')]) + [
        Group('دمای خاک', [[c('Text32'), c('Text33'), c('Text34')],
                           [c('Text35'), c('Text36'), c('Text37')]], name='Frame5')] +
        ([] if browser else [Group('سطح زمین', [[c('Text43')]], name='FraTmaxS')]) + [
        Group('تشت تبخیر', [[c('Text63'), c('Text64')], [c('Text65'), c('Text66')], [c('Text67')]], name='Frame8'),
        Group('زمین و برف', ground_cells, name='Frame9'),
        Group('تابش', [[c('Text71')], [c('Text72')], [c('Text73')]], name='Frame10'),
        Group('آفتاب', [[('@Label109', 'Txttimesun')]]),
    ])
    if browser:
        weather = Box([
            Group('هوای سینوپ', [[c('TXTWW4'), c('TXTWW5'), c('TXTWW6')]], name='Frame17'),
            Group('هوای متار', [[c('TXTWW1'), c('TXTWW3'), c('TXTWW2')]], name='Frame12'),
            Group('', [[c('TXTNAM'), 'Image11', 'Label94']]),
        ])
    else:
        weather = Box([
            Group('هوای سینوپ', [[c('Image1'), c('Image2'), c('Image9')]], name='Frame17'),
            Group('هوای متار', [[c('Image10'), c('Image8'), c('Image7'), 'Image4', 'LabVC']], name='Frame12'),
        ])
    texts = [[c('Text74')], [c('txtSYN')], [c('TXTMET')], [c('TXTSPE')]]
    if browser:
        texts.append([c('TXTSCDATA')])
    codes = Group('ملاحظات و گزارش‌های کد شده', texts)
    return [head, upper, cloud, lower, weather, codes]


def kashf(table):
    global LTR, WIDE
    LTR = {'txtSYN', 'TXTMET', 'TXTSPE', 'Text48', 'Text44'}
    WIDE = {'Text44': 400, 'Text74': 900, 'txtSYN': 1100, 'TXTMET': 1100, 'TXTSPE': 1100, 'Combo7': 190,
            'Combo5': 120, 'Cmb_NLC': 110, 'Combo1': 80, 'Combo2': 80, 'Combo3': 80, 'Combo4': 80,
            'Combo6': 80, 'Combo9': 80, 'CMbMAX': 70, 'CMbMIN': 70}
    f = Form('FrmKashf', table, 'ثبت دیده‌بانی')
    buttons = Box(['Cmdsynop', 'cmdsynop1218', 'Command4', 'Command8', 'Command5', 'Command1',
                   Group('', [[('', 'Combo7'), 'ZAKHIREH']]), 'Command12'])
    return f, register_rows(f, False) + [buttons]


def browser(table):
    global LTR, WIDE, MULTILINE
    MULTILINE = set()
    LTR = {'txtSYN', 'TXTMET', 'TXTSPE', 'TXTSCDATA', 'Text48', 'Text44'}
    WIDE = {'Text44': 400, 'Text74': 900, 'txtSYN': 1100, 'TXTMET': 1100, 'TXTSPE': 1100, 'TXTSCDATA': 1100,
            'TXTSEL': 100, 'TXTNAM': 190}
    for n in ('Text45', 'Text43', 'Text42', 'Text46', 'Text47', 'Text54'):
        WIDE[n] = 80
    f = Form('FrmDisplayKashf', table, 'گزارش‌ها')
    buttons = Box(['newW', 'back', 'nextt', 'last', 'search', 'save', 'Command1', 'Command12'])
    return f, [buttons] + register_rows(f, True)


def fixcaps(body_fn):
    """Fills the empty captions of ('', NAME) cells from CAPTIONS."""
    def walk(x):
        if isinstance(x, Group):
            x.rows = [[(CAPTIONS.get(c[1], c[1]), c[1]) if isinstance(c, tuple) and c[0] == '' else c for c in r]
                      for r in x.rows]
            for r in x.rows:
                for c in r:
                    walk(c)
        elif isinstance(x, Box):
            for it in x.items:
                walk(it)
    f, body = body_fn
    for b in body:
        walk(b)
    return f, body


def main_screen(table):
    global LTR, WIDE
    LTR, WIDE = {'txtpathnamebank1', 'txtpathnamebank2', 'txtpathnamebank3', 'Label8', 'Text1'}, \
        {'txtpathnamebank1': 360, 'txtpathnamebank2': 360, 'txtpathnamebank3': 360}
    f = Form('FrmMain', table, 'obsdesk')
    title = Box(['LabName', 'LabOstan', 'Label7', 'Label43'])
    commands = Group('فرمان‌ها', [['Command2'], ['Command10'], ['Command4'], ['Command9'], ['Command12'], ['CmdEnd']],
                     name='Frame3')
    station = Group('ایستگاه', [['Label2', 'Text1'], ['*Label3'], ['Label34'], ['Command1', 'ComboOstan'], ['LabColor']])
    bank = Group('بانک داده‌ها', [['Label4', 'txtpathnamebank1'], ['Label5', 'txtpathnamebank2'],
                                ['Label6', 'txtpathnamebank3'], ['*Label8'], ['Option1', 'Option2', 'cmdOpen']],
                 name='Frame1')
    return f, [title, Box([commands, Box([station, bank], vertical=True)])]


def simple(name, title, rows, multiline=()):
    def make(table):
        global LTR, WIDE, TILES, MULTILINE
        LTR, WIDE, TILES, MULTILINE = set(), {'Combo1': 300, 'Txtfind': 300}, set(), set(multiline)
        f = Form(name, table, title)
        return f, [Box([Group('', rows)], stretch=False)]
    return make


def pol(table):
    global LTR, MULTILINE, WIDE
    LTR, MULTILINE, WIDE = {'Text'}, {'Text'}, {}
    f = Form('FrmPol', table, 'رونوشت')
    return f, [Box(['Text'], stretch=False),
               Box(['Command2', 'Command3', 'Command4', 'Command5', 'Command1'])]


def auto(name, title, columns, ltr_all=False, buttons=()):
    def make(table):
        global LTR, WIDE, MULTILINE
        MULTILINE = set()
        LTR = {n for n, c in table.items() if c['kind'] in ('TextBox', 'Frame')} if ltr_all else \
            {'txtSYN', 'TXTMET', 'TXTSPE', 'TXTSCDATA', 'Text44', 'Text48'}
        WIDE = {'Text44': 420, 'txtSYN': 1000, 'TXTMET': 1000, 'TXTSPE': 1000, 'TXTSCDATA': 1000, 'Text74': 500,
                'TXTSCDATA ': 1000}
        f = Form(name, table, title)
        for b in buttons:
            f.placed.add(b)
        body = []
        frames = [n for n, c in table.items() if c['kind'] == 'Frame' and c['frame'] == '-' and not c['mask']]
        top = auto_rows(f, '-', columns)
        # Report texts each on a row of their own.
        long = [n for n in ('txtSYN', 'TXTMET', 'TXTSPE', 'TXTSCDATA', 'Text74') if n in table]
        top = [[c for c in r if (c[1] if isinstance(c, tuple) else c) not in long] for r in top]
        if top:
            body.append(Group('', [r for r in top if r]))
        groups = []
        for fr in frames:
            inner = auto_rows(f, fr, 4 if name != 'FrmCode' else columns)
            for sub in [n for n, c in table.items() if c['kind'] == 'Frame' and c['frame'] == fr]:
                inner.append([Group(table[sub]['caption'], auto_rows(f, sub, columns), name=sub)])
            groups.append(Group(table[fr]['caption'], inner, name=fr))
        per_row = 1 if name == 'FrmCode' else 4
        for i in range(0, len(groups), per_row):
            body.append(Box(groups[i:i + per_row]))
        if long:
            body.append(Group('', [[(CAPTIONS.get(n, n), n)] if name != 'FrmCode' else [n] for n in long if n not in f.placed]))
        for b in buttons:
            f.placed.discard(b)
        if buttons:
            body.append(Box(list(buttons)))
        return f, body
    return make


def option(table):
    global LTR, WIDE, TILES, MULTILINE
    TILES, MULTILINE = set(), set()
    LTR = {'NUMCOD', 'TXTCOD'} | {n for n in table if n.startswith('txtm') or n.startswith('TXT') or n in ('txtloge', 'txtpi')}
    WIDE = {'Text1': 260, 'Combo1': 170, 'Combo2': 330}
    for i in range(5, 13):
        WIDE['Text%d' % i] = 200
    f = Form('FrmOption', table, 'مشخصات ایستگاه')
    menu = Box(['Label45', Group('', [['nnew', 'savee', 'EDITT', 'UPDATE', 'firstt', 'LASTt', 'nextt', 'back',
                                       'search', 'Closee']], name='Frame4')])
    station = Group('ایستگاه', [
        [('نام ایستگاه', 'Text1'), ('ID', 'Text21')],
        [('کد بین‌المللی سینوپ', 'NUMCOD'), ('کد بین‌المللی متار', 'TXTCOD')],
        [('عرض جغرافیایی (درجه)', 'txtq1'), ('دقیقه', 'txtq2')],
        [('طول جغرافیایی (درجه)', 'Text3'), ('دقیقه', 'Text2')],
        [('ارتفاع (m)', 'Txth'), ('بلندترین مانع در شعاع ۲۵ مایلی', 'txthmin')],
        [('خطای بارومتر', 'txtci'), ('ضریب تابش', 'txttabesh')],
        [('مدت فعالیت ایستگاه', 'Combo1')], [('نوع تشت تبخیر', 'Combo2')],
        ['OptPnegar', 'txtPnegar', 'OptPsang', 'txtPsang'],
    ])
    heads = [None, ('@ui_h', 'ui_x')] if False else []
    rows = [['', 'مینیمم مطلق', 'مینیمم', 'ماکزیمم', 'ماکزیمم مطلق']]
    names = ['T Dry', 'T Wet', 'Rain', 'Pressure', 'T Earth 5 cm', 'T Earth 10-30 cm', 'T Earth 30-100 cm', 'wind',
             'Avepora']
    limit_rows = []
    for i, cap in enumerate(names, 1):
        limit_rows.append([(cap, 'txtminm%d' % i), 'txtmin%d' % i, 'txtmax%d' % i, 'txtmaxm%d' % i])
    limits = Group('حدود کنترل: مینیمم مطلق، مینیمم، ماکزیمم، ماکزیمم مطلق', limit_rows)
    observers = Group('اسامی دیده‌بانان', [['Text5', 'Text9'], ['Text6', 'Text10'], ['Text7', 'Text11'],
                                          ['Text8', 'Text12']])
    consts = Group('ثابت‌های محاسبات', [[('gn=', 'TXTGH'), ('g45=', 'TXTg45'), ('g=', 'TXTG')],
                                        [('R=', 'TXTR'), ('e=', 'TXTe'), ('a=', 'TXTA')],
                                        [('log(e)=', 'txtloge'), ('pi=', 'txtpi'), ('Pn=', 'TXTPN')]], name='Frame2')
    return f, [menu, Box([station, Box([limits, observers], vertical=True)]), consts]


def board(name, title, columns, extra=(), tiles=None):
    def make(table):
        global LTR, WIDE, TILES, MULTILINE
        LTR, WIDE, MULTILINE = {'Text1'}, {}, set()
        pics = [n for n, c in table.items() if c['kind'] == 'Button' and n != 'Command1']
        TILES = set(pics)
        f = Form(name, table, title)
        grid = [pics[i:i + columns] for i in range(0, len(pics), columns)]
        body = [Group('', grid)]
        foot = [Group('', [[('کد', 'Text1')]])] if 'Text1' in table else []
        foot += list(extra) + ['Command1']
        body.append(Box(foot))
        return f, body
    return make


def ntf(table):
    global LTR, WIDE, TILES, MULTILINE
    LTR, WIDE, TILES, MULTILINE = {'Text1'}, {}, set(), set()
    f = Form('FrmNTF', table, 'مشخصه تغییرات فشار')
    traces = [n for n in table if n.startswith('NTF')]
    labels = [n for n in table if n.startswith('Label')]
    rows = [[t for t in traces[i:i + 5]] for i in range(0, len(traces), 5)]
    return f, [Group('', rows), Group('', [labels[i:i + 5] for i in range(0, len(labels), 5)]),
               Box([Group('', [[('مشخصه', 'Text1')]]), 'Command1'])]


SCREENS = {
    'FrmKashf': lambda t: fixcaps(kashf(t)),
    'FrmMain': main_screen,
    'frmAbout': simple('frmAbout', 'درباره', [['lblTitle'], ['lblVersion'], ['Label8'], ['cmdOK']]),
    'FrmEntezar': simple('FrmEntezar', 'لطفا صبر کنید', [['Label1'], ['ProgressBar1']]),
    'FrmERR': simple('FrmERR', 'پیام', [['*Label1'], ['Command1', 'Command2']]),
    'FrmPol': pol,
    'FrmDisplayKashf': lambda t: fixcaps(browser(t)),
    'FrmHelp': simple('FrmHelp', 'راهنما', [['*Text1'], ['Command1']], multiline=('Text1',)),
    'FrmOption': option,
    'FrmSelectStation': simple('FrmSelectStation', 'انتخاب ایستگاه', [[('ایستگاه', 'Combo1')], [('نام', 'Txtfind')]]),
    'FrmFind': simple('FrmFind', 'جستجو', [
        [('روز', 'TXTDAYmi'), ('ماه میلادی', 'ComMI'), ('سال', 'TXTYEARmi')],
        [('روز', 'TXTDAYsh'), ('ماه شمسی', 'ComSH'), ('سال', 'TXTYEARsh')],
        [('تاریخ', 'DTPicker1'), ('ساعت UTC', 'txttime'), ('روز هفته', 'TXTDAYWEEK')],
        [('عبارت جستجو', 'Txtfind'), 'CmdFind']]),
    'FrmWP': simple('FrmWP', 'ساعت‌های گذشته', [
        ['#UTC'] + ['#%02d' % h for h in range(0, 24, 3)],
        ['#دما'] + ['Text%d' % i for i in range(1, 9)],
        ['#بارش سه ساعته'] + ['Text%d' % i for i in range(9, 17)],
        ['#فشار ایستگاه'] + ['Text%d' % i for i in range(17, 25)],
        [('ساعت آخرین گزارش اصلی', 'Text25'), 'Command1']]),
    'FrmNTF': ntf,
    'FrmFeali': board('FrmFeali', 'هوای حاضر', 10),
    'FrmGozashteh': board('FrmGozashteh', 'هوای ساعت گذشته', 10),
    'Frmgozashteh1': board('Frmgozashteh1', 'هوای گذشته W1', 5),
    'FrmGozashteh2': board('FrmGozashteh2', 'هوای گذشته W2', 5),
    'FrmBCO': board('FrmBCO', 'حروف آسمان', 4),
    'FrmBCOY': board('FrmBCOY', 'حروف آسمان', 4),
    'FrmBCOBCOY': board('FrmBCOBCOY', 'حروف آسمان', 4),
    'FrmZamin': board('FrmZamin', 'حالت سطح زمین', 10),
    'FrmIRIX': simple('FrmIRIX', 'iR iX', [[('iR', 'TXTIR'), 'Combo1'], [('iX', 'TXTIX'), 'Combo3'], ['Command1']]),
    'FrmTooltip': simple('FrmTooltip', '', [['Lab1']]),
    'FrmCode': auto('FrmCode', 'صفحه کد', 10, ltr_all=True, buttons=('Command1', 'Command2', 'Command3')),
}


def main():
    names, outdir = sys.argv[1], sys.argv[2]
    tables = read_names(names)
    only = sys.argv[3:] or list(SCREENS)
    for s in only:
        f, body = SCREENS[s](tables[s])
        write_form('%s/%s.ui' % (outdir, s), f, body)


if __name__ == '__main__':
    main()
