<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG" sourcelanguage="en">
<context>
    <name>ButtonsPage</name>
    <message>
        <source>Buttons and texts</source>
        <translation>الأزرار والنصوص</translation>
    </message>
    <message>
        <source>Take a screenshot</source>
        <translation>التقاط لقطة شاشة</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>بدء</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>الأزرار</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>استبدال</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>ليس الآن</translation>
    </message>
    <message>
        <source>A long text takes a second line</source>
        <translation>النص الطويل يأخذ سطرين</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>النصوص</translation>
    </message>
    <message>
        <source>The title of a page</source>
        <translation>عنوان صفحة</translation>
    </message>
    <message>
        <source>The heading of a card</source>
        <translation>عنوان بطاقة</translation>
    </message>
    <message>
        <source>A text that people read, which wraps where the line ends.</source>
        <translation>نص للقراءة ينتقل إلى السطر التالي عند نهاية السطر.</translation>
    </message>
    <message>
        <source>A text of less importance.</source>
        <translation>نص أقل أهمية.</translation>
    </message>
    <message>
        <source>A label, which ends in an ellipsis where there is no room for it</source>
        <translation>تسمية تنتهي بعلامة حذف إن لم يتسع لها المكان</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>الأيقونات</translation>
    </message>
</context>
<context>
    <name>CablePage</name>
    <message>
        <source>Cable test</source>
        <translation>اختبار الكابل</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>الإعداد</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>تطبيق</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>تقرير</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Cable test, %1</source>
        <translation>اختبار الكابل، %1</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>النتائج</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>تم الحفظ: %1</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>التغييرات</translation>
    </message>
</context>
<context>
    <name>ChangesPage</name>
    <message>
        <source>Changes that wait</source>
        <translation>التغييرات قيد الانتظار</translation>
    </message>
    <message>
        <source>Nothing is sent before Apply</source>
        <translation>لا يُرسَل شيء قبل «تطبيق»</translation>
    </message>
    <message>
        <source>Revert all</source>
        <translation>التراجع عن الكل</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>تطبيق</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>المراجعة</translation>
    </message>
</context>
<context>
    <name>DatesPage</name>
    <message>
        <source>Date and time</source>
        <translation>التاريخ والوقت</translation>
    </message>
    <message>
        <source>Typed as the locale writes them, or picked; passed on as ISO 8601</source>
        <translation>تُكتب حسب البلد أو تُختار، وتُسلَّم وفق ISO 8601</translation>
    </message>
    <message>
        <source>Items of this page</source>
        <translation>عناصر هذه الصفحة</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>الاستحقاق</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>البداية</translation>
    </message>
    <message>
        <source>Values of this page</source>
        <translation>قيم هذه الصفحة</translation>
    </message>
    <message>
        <source>Next calibration</source>
        <translation>المعايرة التالية</translation>
    </message>
    <message>
        <source>In this year</source>
        <translation>في هذه السنة</translation>
    </message>
    <message>
        <source>Passed on: %1</source>
        <translation>‏المُسلَّم: ⁨%1⁩</translation>
    </message>
</context>
<context>
    <name>EntriesPage</name>
    <message>
        <source>Entries</source>
        <translation>حقول الإدخال</translation>
    </message>
    <message>
        <source>ItemEntry over items of the optical service</source>
        <translation>‏ItemEntry لعناصر الخدمة الضوئية</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Gallery</source>
        <translation>المعرض</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>البطارية</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>السمة</translation>
    </message>
    <message>
        <source>light</source>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>dark</source>
        <translation>داكن</translation>
    </message>
    <message>
        <source>sunlight</source>
        <translation>شمس</translation>
    </message>
</context>
<context>
    <name>GroupsPage</name>
    <message>
        <source>Buttons and texts</source>
        <translation>الأزرار والنصوص</translation>
    </message>
    <message>
        <source>Buttons, icons, cards and the sizes of texts</source>
        <translation>الأزرار والأيقونات والبطاقات وأحجام النصوص</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>القوائم</translation>
    </message>
    <message>
        <source>Rows, sections and what stands there when a list is empty</source>
        <translation>الصفوف والأقسام وما يظهر في قائمة فارغة</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>حقول الإدخال</translation>
    </message>
    <message>
        <source>The entry for every kind of item</source>
        <translation>حقل لكل نوع من العناصر</translation>
    </message>
    <message>
        <source>Choices and numbers</source>
        <translation>الخيارات والأرقام</translation>
    </message>
    <message>
        <source>Segments, steppers and sliders that keep an item&apos;s limits</source>
        <translation>مقاطع وأزرار خطوات ومنزلقات ضمن حدود العنصر</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>التاريخ والوقت</translation>
    </message>
    <message>
        <source>Typed as the locale writes them, or picked</source>
        <translation>تُكتب حسب البلد أو تُختار</translation>
    </message>
    <message>
        <source>Status and messages</source>
        <translation>الحالة والرسائل</translation>
    </message>
    <message>
        <source>Verdicts, progress, problems and services that are away</source>
        <translation>النتائج والتقدم والمشكلات والخدمات الغائبة</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>The stack of pages, tabs and the line at the top</source>
        <translation>رصة الصفحات وعلامات التبويب والسطر العلوي</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>المكونات</translation>
    </message>
    <message>
        <source>Changes that wait</source>
        <translation>التغييرات قيد الانتظار</translation>
    </message>
    <message>
        <source>What is applied together, each change with what became of it</source>
        <translation>ما يُطبَّق معًا، وحالة كل تغيير</translation>
    </message>
</context>
<context>
    <name>ListsPage</name>
    <message>
        <source>Lists</source>
        <translation>القوائم</translation>
    </message>
    <message>
        <source>Rows of 11 mm and more, which may touch</source>
        <translation>صفوف من 11 mm فأكثر، يجوز أن تتلامس</translation>
    </message>
    <message>
        <source>JOB-4711, 3 tests</source>
        <translation>‏JOB-4711، 3 اختبارات</translation>
    </message>
    <message>
        <source>JOB-4712, 1 test</source>
        <translation>‏JOB-4712، اختبار واحد</translation>
    </message>
    <message>
        <source>JOB-4713, 8 tests</source>
        <translation>‏JOB-4713، 8 اختبارات</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>أمس</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>الملفات</translation>
    </message>
    <message>
        <source>A section whose contents fold away</source>
        <translation>قسم يمكن طي محتواه</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>being copied</source>
        <translation>يُنسخ الآن</translation>
    </message>
    <message>
        <source>No screenshots</source>
        <translation>لا توجد لقطات شاشة</translation>
    </message>
    <message>
        <source>Tap the camera at the top of a page to keep what it shows.</source>
        <translation>انقر الكاميرا أعلى الصفحة للاحتفاظ بما تعرضه.</translation>
    </message>
    <message>
        <source>Take one</source>
        <translation>التقاط</translation>
    </message>
</context>
<context>
    <name>NumbersPage</name>
    <message>
        <source>Choices and numbers</source>
        <translation>الخيارات والأرقام</translation>
    </message>
    <message>
        <source>A gesture writes one value, within the limits of the item</source>
        <translation>كل إيماءة تكتب قيمة واحدة ضمن حدود العنصر</translation>
    </message>
    <message>
        <source>Items of a service</source>
        <translation>عناصر خدمة</translation>
    </message>
    <message>
        <source>Items of this page</source>
        <translation>عناصر هذه الصفحة</translation>
    </message>
    <message>
        <source>Repetitions</source>
        <translation>مرات التكرار</translation>
    </message>
    <message>
        <source>Brightness in per cent</source>
        <translation>السطوع بالمئة</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Only failures</source>
        <translation>الراسبة فقط</translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation>‏المختار: %1</translation>
    </message>
</context>
<context>
    <name>PagesPage</name>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>Page %1 of the stack</source>
        <translation>‏الصفحة %1 من الرصة</translation>
    </message>
    <message>
        <source>The footer stays where it is.</source>
        <translation>يبقى التذييل في مكانه.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>الرئيسية</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>الصفحة التالية</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>نظرة عامة</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>الأحداث</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>المنحنى</translation>
    </message>
    <message>
        <source>Tabs above the contents. The arrow keys go from tab to tab.</source>
        <translation>علامات تبويب فوق المحتوى. تنتقل مفاتيح الأسهم بينها.</translation>
    </message>
    <message>
        <source>Tabs below the contents are the navigation of a program.</source>
        <translation>علامات التبويب تحت المحتوى هي وسيلة التنقل في البرنامج.</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>الإعداد</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>القياس</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>النتائج</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>التقرير</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>الملفات</translation>
    </message>
</context>
<context>
    <name>StatusPage</name>
    <message>
        <source>Status and messages</source>
        <translation>الحالة والرسائل</translation>
    </message>
    <message>
        <source>Round-trip time</source>
        <translation>زمن الذهاب والإياب</translation>
    </message>
    <message>
        <source>Throughput</source>
        <translation>معدل النقل</translation>
    </message>
    <message>
        <source>Attenuation</source>
        <translation>الفقد</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>الطول</translation>
    </message>
    <message>
        <source>Let the service return</source>
        <translation>إعادة الخدمة</translation>
    </message>
    <message>
        <source>Let the service vanish</source>
        <translation>إخفاء الخدمة</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدم</translation>
    </message>
    <message>
        <source>42 of 100 samples, 12 s left</source>
        <translation>‏42 من 100 عينة، بقي 12 s</translation>
    </message>
    <message>
        <source>Waiting for the far end</source>
        <translation>انتظار الطرف البعيد</translation>
    </message>
    <message>
        <source>Problems, where they are</source>
        <translation>المشكلات في موضعها</translation>
    </message>
    <message>
        <source>The name may have 50 characters, it has 86.</source>
        <translation>قد يكون للاسم 50 حرفًا، وله الآن 86.</translation>
    </message>
    <message>
        <source>The drive is full. Delete files, or save to the USB drive; what was measured is kept as a draft until then.</source>
        <translation>القرص ممتلئ. احذف ملفات أو احفظ على ذاكرة USB؛ وتبقى القياسات مسودةً حتى ذلك الحين.</translation>
    </message>
</context>
<context>
    <name>gallery</name>
    <message>
        <source>Site</source>
        <translation>الموقع</translation>
    </message>
    <message>
        <source>Attenuation</source>
        <translation>الفقد</translation>
    </message>
    <message>
        <source>Repetitions</source>
        <translation>مرات التكرار</translation>
    </message>
    <message>
        <source>Server (either version)</source>
        <translation>الخادم (أيٌّ من الإصدارين)</translation>
    </message>
    <message>
        <source>Unit address</source>
        <translation>عنوان الوحدة</translation>
    </message>
    <message>
        <source>Unit address, version 6</source>
        <translation>عنوان الوحدة، الإصدار 6</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>المنفذ</translation>
    </message>
    <message>
        <source>Upload to</source>
        <translation>الرفع إلى</translation>
    </message>
    <message>
        <source>Report file</source>
        <translation>ملف التقرير</translation>
    </message>
    <message>
        <source>Upload password</source>
        <translation>كلمة مرور الرفع</translation>
    </message>
    <message>
        <source>Call back</source>
        <translation>معاودة الاتصال</translation>
    </message>
    <message>
        <source>Cabinet code</source>
        <translation>رمز الخزانة</translation>
    </message>
    <message>
        <source>Test pattern (hexadecimal)</source>
        <translation>نمط الاختبار (ست عشري)</translation>
    </message>
    <message>
        <source>File mode (octal)</source>
        <translation>وضع الملف (ثماني)</translation>
    </message>
    <message>
        <source>Alarm lines (binary)</source>
        <translation>خطوط الإنذار (ثنائي)</translation>
    </message>
    <message>
        <source>Test time</source>
        <translation>مدة الاختبار</translation>
    </message>
    <message>
        <source>Buzzer</source>
        <translation>الجرس</translation>
    </message>
    <message>
        <source>Connector</source>
        <translation>الموصل</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>مستقيم</translation>
    </message>
    <message>
        <source>Angled</source>
        <translation>مائل</translation>
    </message>
    <message>
        <source>Bare fiber</source>
        <translation>ليف عارٍ</translation>
    </message>
    <message>
        <source>Landmarks</source>
        <translation>المعالم</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>المرجع</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>المستشعر</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>الرقم التسلسلي</translation>
    </message>
    <message>
        <source>Items of a service</source>
        <translation>عناصر خدمة</translation>
    </message>
    <message>
        <source>Items of this page</source>
        <translation>عناصر هذه الصفحة</translation>
    </message>
</context>
</TS>
