<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG" sourcelanguage="en">
<context>
    <name>ActionForm</name>
    <message>
        <source>Argument</source>
        <translation>الوسيط</translation>
    </message>
    <message>
        <source>Carry out</source>
        <translation>تنفيذ</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The name of the folder %1, given by --root or UIUTILS_ROOT, is not written in the encoding of file names. Name another folder.</source>
        <translation>اسم المجلد %1 المحدد بواسطة --root أو UIUTILS_ROOT ليس مكتوبًا بترميز أسماء الملفات. حدّد مجلدًا آخر.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>عرض هذه المساعدة.</translation>
    </message>
    <message>
        <source>Try --help for the options.</source>
        <translation>جرّب --help لعرض الخيارات.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>مجلد</translation>
    </message>
    <message>
        <source>Publish the services described in &lt;folder&gt;; may be given more than once (default: %1).</source>
        <translation>نشر الخدمات الموصوفة في &lt;folder&gt;؛ يمكن تكراره (الافتراضي: %1).</translation>
    </message>
    <message>
        <source>--%1 needs a name.</source>
        <translation>يتطلب --%1 اسمًا.</translation>
    </message>
    <message>
        <source>Show what a screen of that size and density shows, &lt;width&gt;x&lt;height&gt;@&lt;dots per inch&gt;, such as 800x480@133 (default: %1).</source>
        <translation>إظهار ما تعرضه شاشة بهذا الحجم والكثافة، &lt;width&gt;x&lt;height&gt;@&lt;dots per inch&gt;، مثل 800x480@133 (الافتراضي: %1).</translation>
    </message>
    <message>
        <source>screen</source>
        <translation>شاشة</translation>
    </message>
    <message>
        <source>--screen needs a size of %1 to %2 pixels and a density of %3 to %4 dots per inch, such as 1024x600@170.</source>
        <translation>يتطلب --screen حجمًا من %1 إلى %2 بكسل وكثافة من %3 إلى %4 نقطة في البوصة، مثل 1024x600@170.</translation>
    </message>
    <message>
        <source>--from needs a number of seconds.</source>
        <translation>يحتاج --from إلى عدد من الثواني.</translation>
    </message>
    <message>
        <source>--speed needs a number from 0.001 to 1000000.</source>
        <translation>يحتاج --speed إلى عدد من 0.001 إلى 1000000.</translation>
    </message>
</context>
<context>
    <name>ControlsStyle</name>
    <message>
        <source>Pass</source>
        <translation>ناجح</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>راسب</translation>
    </message>
</context>
<context>
    <name>Demo</name>
    <message>
        <source>Measures TCP over this machine&apos;s loopback interface and saves a report of it, the way a test application of the instrument does.
With a display a window opens. Without one, or with --tour, the program runs by itself.

Exit status: 0 done, 1 failed, 2 wrong command line.</source>
        <translation>يقيس TCP عبر واجهة الحلقة في هذا الحاسوب ويحفظ تقريرًا عنه، كما يفعل تطبيق اختبار في الجهاز.
مع وجود شاشة تُفتح نافذة. ودونها، أو مع --tour، يعمل البرنامج من تلقاء نفسه.

رمز الخروج: 0 تم، 1 فشل، 2 سطر أوامر خاطئ.</translation>
    </message>
    <message>
        <source>Keep everything that is written below &lt;folder&gt; (default: %1).</source>
        <translation>حفظ كل ما يُكتب تحت &lt;folder&gt; (الافتراضي: %1).</translation>
    </message>
    <message>
        <source>Take &lt;number&gt; samples of each quantity, %1 to %2 (default: as the settings say).</source>
        <translation>أخذ &lt;number&gt; عينة من كل كمية، من %1 إلى %2 (الافتراضي: حسب الإعدادات).</translation>
    </message>
    <message>
        <source>number</source>
        <translation>رقم</translation>
    </message>
    <message>
        <source>Measure, save a report, take a picture of each page and quit.</source>
        <translation>القياس وحفظ تقرير والتقاط صورة لكل صفحة ثم الخروج.</translation>
    </message>
    <message>
        <source>Wait until another application changes the user&apos;s name, the services end and return; take a picture of each and quit. Needs KIV_PLATFORM=bus.</source>
        <translation>الانتظار حتى يغيّر تطبيق آخر اسم المستخدم وتنتهي الخدمات ثم تعود؛ والتقاط صورة لكل منها ثم الخروج. يتطلب KIV_PLATFORM=bus.</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>وسيط غير متوقع &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>--samples needs a number from %1 to %2.</source>
        <translation>يتطلب --samples رقمًا من %1 إلى %2.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created, because %2 is a file. Name another folder with --root.</source>
        <translation>يتعذر إنشاء المجلد %1 لأن %2 ملف. حدّد مجلدًا آخر بالخيار --root.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created in %2. Check that you may write there, or name another folder with --root.</source>
        <translation>يتعذر إنشاء المجلد %1 في %2. تحقق من صلاحية الكتابة هناك، أو حدّد مجلدًا آخر بالخيار --root.</translation>
    </message>
    <message>
        <source>Everything is written below %1</source>
        <translation>يُكتب كل شيء تحت %1</translation>
    </message>
    <message>
        <source>The main page could not be loaded, for the reason given above. Check that the QML modules QtQuick, QtQuick.Controls, QtQuick.Layouts and QtQuick.Window are installed.</source>
        <translation>تعذر تحميل الصفحة الرئيسية للسبب المذكور أعلاه. تحقق من تثبيت وحدات QML وهي QtQuick وQtQuick.Controls وQtQuick.Layouts وQtQuick.Window.</translation>
    </message>
    <message>
        <source>Pictures:</source>
        <translation>الصور:</translation>
    </message>
    <message>
        <source>Reports:</source>
        <translation>التقارير:</translation>
    </message>
    <message>
        <source>Screenshots:</source>
        <translation>لقطات الشاشة:</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>تتعذر كتابة %1: %2.</translation>
    </message>
    <message>
        <source>Texts were typed on the on-screen keyboard.</source>
        <translation>كُتبت النصوص بلوحة المفاتيح على الشاشة.</translation>
    </message>
</context>
<context>
    <name>DeskDrawer</name>
    <message>
        <source>Desk</source>
        <translation>المنضدة</translation>
    </message>
    <message>
        <source>What happens to an instrument in the field, at the press of a button.</source>
        <translation>ما يحدث لجهاز في الميدان، بضغطة زر.</translation>
    </message>
    <message>
        <source>USB drive</source>
        <translation>ذاكرة USB</translation>
    </message>
    <message>
        <source>Unplug</source>
        <translation>نزع</translation>
    </message>
    <message>
        <source>Plug in</source>
        <translation>توصيل</translation>
    </message>
    <message>
        <source>Pull unnoticed</source>
        <translation>نزع دون إشعار</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>القرص</translation>
    </message>
    <message>
        <source>Make space</source>
        <translation>إخلاء مساحة</translation>
    </message>
    <message>
        <source>Fill the disk</source>
        <translation>ملء القرص</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>الجهاز</translation>
    </message>
    <message>
        <source>Drain the battery</source>
        <translation>تفريغ البطارية</translation>
    </message>
    <message>
        <source>Charge the battery</source>
        <translation>شحن البطارية</translation>
    </message>
    <message>
        <source>Cut the link</source>
        <translation>قطع الوصلة</translation>
    </message>
    <message>
        <source>Restore the link</source>
        <translation>استعادة الوصلة</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>الخدمات</translation>
    </message>
    <message>
        <source>They live in another process.</source>
        <translation>تعمل في عملية أخرى.</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>سريع</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>بطيء</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>عودة</translation>
    </message>
    <message>
        <source>Vanish</source>
        <translation>اختفاء</translation>
    </message>
    <message>
        <source>Inspector (F12)</source>
        <translation>المفتش (F12)</translation>
    </message>
</context>
<context>
    <name>DigitsEntry</name>
    <message>
        <source>Only digits can be used here</source>
        <translation>لا يُقبل هنا إلا الأرقام</translation>
    </message>
</context>
<context>
    <name>DurableFile</name>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>تتعذر كتابة ⁦%1⁩: %2</translation>
    </message>
    <message>
        <source>The path holds a NUL character</source>
        <translation>يحتوي المسار على المحرف NUL</translation>
    </message>
    <message>
        <source>Cannot create a file in the folder of %1: %2</source>
        <translation>يتعذر إنشاء ملف في مجلد ⁦%1⁩: %2</translation>
    </message>
    <message>
        <source>Cannot replace %1: %2</source>
        <translation>يتعذر استبدال ⁦%1⁩: %2</translation>
    </message>
    <message>
        <source>Cannot make sure that %1 survives a power cut: %2</source>
        <translation>لا يمكن ضمان بقاء ⁦%1⁩ بعد انقطاع التيار: %2</translation>
    </message>
</context>
<context>
    <name>DurationEntry</name>
    <message>
        <source>Hours, minutes and seconds, such as 1:30:00</source>
        <translation>ساعات ودقائق وثوانٍ، مثل 1:30:00</translation>
    </message>
    <message>
        <source>This is too long</source>
        <translation>هذا طويل جدًا</translation>
    </message>
</context>
<context>
    <name>Entry</name>
    <message>
        <source>Not available</source>
        <translation>غير متاح</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>غير جاهز</translation>
    </message>
    <message>
        <source>Must be filled in</source>
        <translation>حقل مطلوب</translation>
    </message>
</context>
<context>
    <name>FieldEntry</name>
    <message>
        <source>chars</source>
        <translation>محارف</translation>
    </message>
    <message>
        <source>This must be filled in</source>
        <translation>هذا الحقل مطلوب</translation>
    </message>
    <message>
        <source>This does not have the required form</source>
        <translation>هذا ليس بالشكل المطلوب</translation>
    </message>
    <message>
        <source>Changed meanwhile to %1</source>
        <translation>تغيّر في هذه الأثناء إلى %1</translation>
    </message>
    <message>
        <source>another value</source>
        <translation>قيمة أخرى</translation>
    </message>
    <message>
        <source>Hide %1</source>
        <translation>إخفاء %1</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>إظهار %1</translation>
    </message>
    <message>
        <source>Number pad for %1</source>
        <translation>لوحة أرقام لـ %1</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>غير جاهز</translation>
    </message>
</context>
<context>
    <name>FileDetailsPage</name>
    <message>
        <source>Deleted</source>
        <translation>محذوف</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Copy to USB</source>
        <translation>نسخ إلى USB</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>قراءة</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>التنسيق</translation>
    </message>
    <message>
        <source>%1, compressed</source>
        <translation>‏%1، مضغوط</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>تاريخ الحفظ</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>المزامنة</translation>
    </message>
    <message>
        <source>The list of reports that stay here cannot be used.</source>
        <translation>يتعذر استخدام قائمة التقارير التي تبقى هنا.</translation>
    </message>
    <message>
        <source>The cloud may take it.</source>
        <translation>يمكن للسحابة أخذه.</translation>
    </message>
    <message>
        <source>It stays on the unit.</source>
        <translation>يبقى على الجهاز.</translation>
    </message>
    <message>
        <source>Keep here</source>
        <translation>إبقاء هنا</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>الوقت</translation>
    </message>
</context>
<context>
    <name>FileSystemUsage</name>
    <message>
        <source>Not Enough Space</source>
        <translation>المساحة غير كافية</translation>
    </message>
</context>
<context>
    <name>FileUtils</name>
    <message>
        <source>Directory</source>
        <translation>المجلد</translation>
    </message>
    <message>
        <source>File</source>
        <translation>الملف</translation>
    </message>
    <message>
        <source>I/O Error</source>
        <translation>خطأ إدخال/إخراج</translation>
    </message>
    <message>
        <source>Drive %1 is full</source>
        <translation>محرك الأقراص ⁦%1⁩ ممتلئ</translation>
    </message>
    <message>
        <source>Read Error</source>
        <translation>خطأ في القراءة</translation>
    </message>
    <message>
        <source>There was an error reading %1</source>
        <translation>حدث خطأ أثناء قراءة ⁦%1⁩</translation>
    </message>
    <message>
        <source>Write Error</source>
        <translation>خطأ في الكتابة</translation>
    </message>
    <message>
        <source>There was an error writing to %1</source>
        <translation>حدث خطأ أثناء كتابة ⁦%1⁩</translation>
    </message>
    <message>
        <source>Not enough disk space for %1 - would need %2</source>
        <translation>لا توجد مساحة كافية لـ ⁦%1⁩ - المطلوب %2</translation>
    </message>
    <message>
        <source>Not Enough Space</source>
        <translation>المساحة غير كافية</translation>
    </message>
    <message>
        <source>Do you want to overwrite all files/directories?</source>
        <translation>هل تريد استبدال جميع الملفات/المجلدات؟</translation>
    </message>
    <message>
        <source>Do you want to overwrite %1 %2?</source>
        <translation>هل تريد استبدال %1 ⁦%2⁩؟</translation>
    </message>
    <message>
        <source>File Exists</source>
        <translation>الملف موجود</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>الملفات</translation>
    </message>
    <message>
        <source>Do you want to delete these %1 files?</source>
        <translation>هل تريد حذف هذه الملفات (%1)؟</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 %2?</source>
        <translation>هل تريد حذف %1 ⁦%2⁩؟</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>حذف ⁦%1⁩</translation>
    </message>
    <message>
        <source>Report Exists</source>
        <translation>التقرير موجود</translation>
    </message>
    <message>
        <source>Do you want to overwrite report %1?</source>
        <translation>هل تريد استبدال التقرير ⁦%1⁩؟</translation>
    </message>
    <message>
        <source>Do you want to overwrite screenshot %1?</source>
        <translation>هل تريد استبدال لقطة الشاشة ⁦%1⁩؟</translation>
    </message>
    <message>
        <source>Internal:</source>
        <translation>داخلي:‎</translation>
    </message>
    <message>
        <source>USB:</source>
        <translation>USB:</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>استبدال</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>إبقاء</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>و%1 أخرى</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>control characters</source>
        <translation>محارف تحكم</translation>
    </message>
    <message>
        <source>The name may have %1 characters, it has %2</source>
        <translation>يمكن أن يتكون الاسم من %1 محرفًا، وفيه %2</translation>
    </message>
    <message>
        <source>The name must not contain %1</source>
        <translation>يجب ألا يحتوي الاسم على %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file name</source>
        <translation>‏&quot;%1&quot; ليس اسم ملف</translation>
    </message>
    <message>
        <source>The name is empty</source>
        <translation>الاسم فارغ</translation>
    </message>
    <message>
        <source>The name must not begin with a space</source>
        <translation>يجب ألا يبدأ الاسم بمسافة</translation>
    </message>
    <message>
        <source>The name must not end with a space</source>
        <translation>يجب ألا ينتهي الاسم بمسافة</translation>
    </message>
    <message>
        <source>The name must not end with a point</source>
        <translation>يجب ألا ينتهي الاسم بنقطة</translation>
    </message>
    <message>
        <source>Computers do not allow the name &quot;%1&quot;</source>
        <translation>لا تسمح الحواسيب بالاسم &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>Files</source>
        <translation>الملفات</translation>
    </message>
    <message numerus="yes">
        <source>%n screenshots</source>
        <translation>
            <numerusform>لا توجد لقطات (%n)</numerusform>
            <numerusform>لقطة واحدة (%n)</numerusform>
            <numerusform>لقطتان (%n)</numerusform>
            <numerusform>%n لقطات</numerusform>
            <numerusform>%n لقطة</numerusform>
            <numerusform>%n لقطة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n reports</source>
        <translation>
            <numerusform>لا توجد تقارير (%n)</numerusform>
            <numerusform>تقرير واحد (%n)</numerusform>
            <numerusform>تقريران (%n)</numerusform>
            <numerusform>%n تقارير</numerusform>
            <numerusform>%n تقريرًا</numerusform>
            <numerusform>%n تقرير</numerusform>
        </translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>الجهاز</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Name or format</source>
        <translation>الاسم أو التنسيق</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>الأحدث</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>‏⁨%1⁩، ⁨%2⁩</translation>
    </message>
    <message>
        <source>%1, compressed</source>
        <translation>‏%1، مضغوط</translation>
    </message>
    <message>
        <source>No report is found</source>
        <translation>لم يُعثر على تقارير</translation>
    </message>
    <message>
        <source>There is no USB drive</source>
        <translation>لا توجد ذاكرة USB</translation>
    </message>
    <message>
        <source>Nothing is saved yet</source>
        <translation>لم يُحفظ شيء بعد</translation>
    </message>
    <message>
        <source>There are no screenshots</source>
        <translation>لا توجد لقطات شاشة</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>%1, %2 % of the drive in use</source>
        <translation>‏%1، المستخدَم من القرص %2 %</translation>
    </message>
</context>
<context>
    <name>FontTexts</name>
    <message>
        <source>The font is broken</source>
        <translation>الخط تالف</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Choose a job.</source>
        <translation>اختر مهمة.</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>اختيار</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>عرض</translation>
    </message>
    <message>
        <source>Measure. The set-up is ready.</source>
        <translation>ابدأ القياس. الإعداد جاهز.</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>قياس</translation>
    </message>
    <message>
        <source>Save the report of this run.</source>
        <translation>احفظ تقرير هذا القياس.</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>التقرير</translation>
    </message>
    <message>
        <source>The report is saved. Take the next job.</source>
        <translation>تم حفظ التقرير. انتقل إلى المهمة التالية.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>المهام</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>الرئيسية</translation>
    </message>
    <message>
        <source>No job</source>
        <translation>لا توجد مهمة</translation>
    </message>
    <message>
        <source>No job is open. Results are saved without one.</source>
        <translation>لا توجد مهمة مفتوحة. تُحفظ النتائج دون مهمة.</translation>
    </message>
    <message>
        <source>People</source>
        <translation>الأشخاص</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>غير محفوظ</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>التالي</translation>
    </message>
    <message>
        <source>Results of %1 were not saved.</source>
        <translation>لم تُحفظ نتائج %1.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>تجاهل</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>الإعداد</translation>
    </message>
    <message>
        <source>Not applied yet</source>
        <translation>لم يُطبَّق بعد</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>مطبَّق</translation>
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
        <source>%1 samples</source>
        <translation>عدد العينات: %1</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>لا شيء بعد</translation>
    </message>
    <message>
        <source>Nothing to save</source>
        <translation>لا شيء للحفظ</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>محفوظ</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>الملفات</translation>
    </message>
    <message>
        <source>All that is saved</source>
        <translation>كل ما حُفظ</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Of the unit</source>
        <translation>للجهاز</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>KIV_PLATFORM is &quot;%1&quot;. Set it to &quot;embedded&quot; or &quot;bus&quot;, or leave it out.</source>
        <translation>قيمة KIV_PLATFORM هي &quot;%1&quot;. اضبطها على &quot;embedded&quot; أو &quot;bus&quot; أو احذفها.</translation>
    </message>
    <message>
        <source>No service could be loaded from %1. Name a folder with service files, with --services where the program has that option, or with KIV_SERVICES.</source>
        <translation>تعذر تحميل أي خدمة من %1. حدّد مجلدًا يحتوي على ملفات الخدمات بالخيار --services إن كان للبرنامج هذا الخيار، أو بواسطة KIV_SERVICES.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>تتعذر قراءة %1: %2.</translation>
    </message>
    <message>
        <source>Reports have no icons: the folder %1 cannot be created. Check that you may write there.</source>
        <translation>لا توجد أيقونات في التقارير: يتعذر إنشاء المجلد %1. تحقق من صلاحية الكتابة هناك.</translation>
    </message>
    <message>
        <source>Reports have no icons: those of the library are not installed.</source>
        <translation>لا توجد أيقونات في التقارير: أيقونات المكتبة غير مثبتة.</translation>
    </message>
    <message>
        <source>An image of reports is missing. %1</source>
        <translation>إحدى صور التقارير مفقودة. %1</translation>
    </message>
    <message>
        <source>There is no service %1.</source>
        <translation>لا توجد خدمة %1.</translation>
    </message>
    <message>
        <source>There is no service on the bus yet. Start kivd; its services are shown when they come.</source>
        <translation>لا توجد خدمات على الناقل بعد. شغّل kivd؛ وستظهر خدماته عند توفرها.</translation>
    </message>
    <message>
        <source>Saved reports cannot be shown: the link %1 to the viewer of PDF files cannot be created. Check that you may write there.</source>
        <translation>يتعذر عرض التقارير المحفوظة: يتعذر إنشاء الرابط %1 إلى عارض PDF. تحقق من صلاحية الكتابة هناك.</translation>
    </message>
    <message>
        <source>KIV_SIMULATION is &quot;%1&quot;. Set it to &quot;on&quot; or &quot;off&quot;, or leave it out.</source>
        <translation>قيمة KIV_SIMULATION هي &quot;%1&quot;. اضبطها على &quot;on&quot; أو &quot;off&quot; أو احذفها.</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Passing</source>
        <translation>ناجح</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
    <message>
        <source>Failing</source>
        <translation>فاشل</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>The service has come</source>
        <translation>ظهرت الخدمة</translation>
    </message>
    <message>
        <source>The service has gone</source>
        <translation>اختفت الخدمة</translation>
    </message>
    <message>
        <source>The item has come</source>
        <translation>ظهر العنصر</translation>
    </message>
    <message>
        <source>The item has gone</source>
        <translation>اختفى العنصر</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>جاهز</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>غير جاهز</translation>
    </message>
    <message>
        <source>Applicable</source>
        <translation>قابل للتطبيق</translation>
    </message>
    <message>
        <source>Not applicable</source>
        <translation>غير قابل للتطبيق</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>القيمة</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>الوحدة</translation>
    </message>
    <message>
        <source>Readiness</source>
        <translation>الجاهزية</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>الجودة</translation>
    </message>
    <message>
        <source>Applicability</source>
        <translation>قابلية التطبيق</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>الخدمة</translation>
    </message>
    <message>
        <source>Rejected by hand</source>
        <translation>رُفض يدويًا</translation>
    </message>
    <message>
        <source>The service does not live here.</source>
        <translation>لا تعمل الخدمة هنا.</translation>
    </message>
    <message>
        <source>The item cannot have this value.</source>
        <translation>لا يمكن أن يأخذ العنصر هذه القيمة.</translation>
    </message>
    <message>
        <source>The item cannot have these limits.</source>
        <translation>لا يمكن أن يأخذ العنصر هذه الحدود.</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>المفتش</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>غير متاح</translation>
    </message>
    <message numerus="yes">
        <source>%n elements</source>
        <translation>
            <numerusform>لا عناصر</numerusform>
            <numerusform>عنصر واحد</numerusform>
            <numerusform>عنصران</numerusform>
            <numerusform>%n عناصر</numerusform>
            <numerusform>%n عنصرًا</numerusform>
            <numerusform>%n عنصر</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n members</source>
        <translation>
            <numerusform>لا حقول</numerusform>
            <numerusform>حقل واحد</numerusform>
            <numerusform>حقلان</numerusform>
            <numerusform>%n حقول</numerusform>
            <numerusform>%n حقلًا</numerusform>
            <numerusform>%n حقل</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2 changes in %3 s</source>
        <translation>‏⁦%1⁩: %2 تغييرات خلال %3 ث</translation>
    </message>
</context>
<context>
    <name>InspectorPanel</name>
    <message>
        <source>Inspector</source>
        <translation>المفتش</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>العناصر</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>الخدمات</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>التغييرات</translation>
    </message>
</context>
<context>
    <name>Instrument</name>
    <message>
        <source>Home</source>
        <translation>الرئيسية</translation>
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
    <name>InstrumentBar</name>
    <message>
        <source>Job</source>
        <translation>المهمة</translation>
    </message>
    <message>
        <source>No job</source>
        <translation>لا توجد مهمة</translation>
    </message>
    <message>
        <source>User</source>
        <translation>المستخدم</translation>
    </message>
    <message>
        <source>USB drive</source>
        <translation>ذاكرة USB</translation>
    </message>
    <message>
        <source>No USB drive</source>
        <translation>لا توجد ذاكرة USB</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>الوصلة</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>مقطوعة</translation>
    </message>
    <message>
        <source>%1 G</source>
        <translation>‏%1 G</translation>
    </message>
    <message>
        <source>%1 M</source>
        <translation>‏%1 M</translation>
    </message>
    <message>
        <source>Battery, charging</source>
        <translation>البطارية، قيد الشحن</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>البطارية</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>‏%1 %</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>الإشعارات</translation>
    </message>
</context>
<context>
    <name>ItemDetails</name>
    <message>
        <source>No item chosen</source>
        <translation>لم يُختر عنصر</translation>
    </message>
    <message>
        <source>Choose one in the list.</source>
        <translation>اختر عنصرًا من القائمة.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>الإعداد</translation>
    </message>
</context>
<context>
    <name>ItemFace</name>
    <message>
        <source>The entry was rejected.</source>
        <translation>رُفض الإدخال.</translation>
    </message>
</context>
<context>
    <name>ItemHands</name>
    <message>
        <source>By hand</source>
        <translation>يدويًا</translation>
    </message>
    <message>
        <source>What a service reports can be set by hand where the service lives in this process. This one lives in another.</source>
        <translation>يمكن ضبط ما تبلّغ عنه الخدمة يدويًا إذا كانت تعمل في هذه العملية. تعمل هذه الخدمة في عملية أخرى.</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>الجودة</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>ناجح</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>فاشل</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>جاهز</translation>
    </message>
    <message>
        <source>Applicable</source>
        <translation>قابل للتطبيق</translation>
    </message>
    <message>
        <source>The service decides by an expression.</source>
        <translation>تقرر الخدمة ذلك بتعبير.</translation>
    </message>
    <message>
        <source>Value that the service reports</source>
        <translation>القيمة التي تبلّغ عنها الخدمة</translation>
    </message>
    <message>
        <source>Shortest</source>
        <translation>الأقصر</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>الحد الأدنى</translation>
    </message>
    <message>
        <source>Longest</source>
        <translation>الأطول</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>الحد الأقصى</translation>
    </message>
</context>
<context>
    <name>ItemHistory</name>
    <message>
        <source>No values yet</source>
        <translation>لا توجد قيم بعد</translation>
    </message>
    <message>
        <source>History of %1</source>
        <translation>سجل %1</translation>
    </message>
</context>
<context>
    <name>ItemStepper</name>
    <message>
        <source>Less: %1</source>
        <translation>أقل: %1</translation>
    </message>
    <message>
        <source>More: %1</source>
        <translation>أكثر: %1</translation>
    </message>
</context>
<context>
    <name>ItemsPage</name>
    <message>
        <source>Search items</source>
        <translation>ابحث عن عناصر</translation>
    </message>
    <message>
        <source>Favourites only</source>
        <translation>المفضلة فقط</translation>
    </message>
    <message>
        <source>%1 of %2 items</source>
        <translation>‏%1 من %2 من العناصر</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>العناصر</translation>
    </message>
    <message>
        <source>Remove %1 from the favourites</source>
        <translation>إزالة %1 من المفضلة</translation>
    </message>
    <message>
        <source>Add %1 to the favourites</source>
        <translation>إضافة %1 إلى المفضلة</translation>
    </message>
    <message>
        <source>No items</source>
        <translation>لا توجد عناصر</translation>
    </message>
    <message>
        <source>The items are shown when their services come.</source>
        <translation>تظهر العناصر عند ظهور خدماتها.</translation>
    </message>
    <message>
        <source>No item matches the search.</source>
        <translation>لا يوجد عنصر يطابق البحث.</translation>
    </message>
</context>
<context>
    <name>JobsPage</name>
    <message>
        <source>Planned</source>
        <translation>مخطّطة</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>قيد التنفيذ</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>منجزة</translation>
    </message>
    <message>
        <source>Apply or revert the set-up first: it would be applied with the job.</source>
        <translation>طبّق الإعداد أو تراجع عنه أولًا، وإلا طُبّق مع المهمة.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>المهام</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>لا توجد مهام (%n)</numerusform>
            <numerusform>مهمة واحدة (%n)</numerusform>
            <numerusform>مهمتان (%n)</numerusform>
            <numerusform>%n مهام</numerusform>
            <numerusform>%n مهمة</numerusform>
            <numerusform>%n مهمة</numerusform>
        </translation>
    </message>
    <message>
        <source>People</source>
        <translation>الأشخاص</translation>
    </message>
    <message>
        <source>Job, customer or circuit</source>
        <translation>المهمة أو العميل أو الدائرة</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>المفتوحة</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>‏%1، %2</translation>
    </message>
    <message>
        <source>%1
%2</source>
        <translation>‏%1
%2</translation>
    </message>
    <message>
        <source>No job is found</source>
        <translation>لم يُعثر على مهام</translation>
    </message>
    <message>
        <source>There are no jobs</source>
        <translation>لا توجد مهام</translation>
    </message>
    <message>
        <source>Other words, or all jobs, may find one.</source>
        <translation>قد تجد مهمة بكلمات أخرى أو ضمن كل المهام.</translation>
    </message>
    <message>
        <source>The services of jobs and of the unit are not published.</source>
        <translation>خدمات المهام والجهاز غير منشورة.</translation>
    </message>
</context>
<context>
    <name>KitPage</name>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
</context>
<context>
    <name>KivAggregateData</name>
    <message>
        <source>%1 has no member %2.</source>
        <translation>لا يحتوي %1 على العنصر %2.</translation>
    </message>
</context>
<context>
    <name>KivData</name>
    <message>
        <source>%1 max chars</source>
        <translation>‏%1 محرفًا كحد أقصى</translation>
    </message>
    <message>
        <source>%1 chars</source>
        <translation>عدد المحارف: %1</translation>
    </message>
    <message>
        <source>%1 - %2 chars</source>
        <translation>عدد المحارف: %1 - %2</translation>
    </message>
    <message>
        <source>%1 max digits</source>
        <translation>‏%1 أرقام كحد أقصى</translation>
    </message>
    <message>
        <source>%1 digits</source>
        <translation>عدد الأرقام: %1</translation>
    </message>
    <message>
        <source>%1 - %2 digits</source>
        <translation>عدد الأرقام: %1 - %2</translation>
    </message>
    <message>
        <source>%1 only</source>
        <translation>‏%1 فقط</translation>
    </message>
    <message>
        <source>Please enter IP address</source>
        <translation>أدخل عنوان IP</translation>
    </message>
    <message>
        <source>Please enter IPv6 address</source>
        <translation>أدخل عنوان IPv6</translation>
    </message>
    <message>
        <source>Please enter URL</source>
        <translation>أدخل عنوان URL</translation>
    </message>
    <message>
        <source>Please enter DNS name</source>
        <translation>أدخل اسم DNS</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
</context>
<context>
    <name>Languages</name>
    <message>
        <source>No native speaker has checked this translation.</source>
        <translation>لم يراجع هذه الترجمة أي متحدث أصلي باللغة.</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of the language of this translation, in that language.</extracomment>
        <translation>العربية</translation>
    </message>
</context>
<context>
    <name>ListEntry</name>
    <message>
        <source>New element of %1</source>
        <translation>عنصر جديد في %1</translation>
    </message>
    <message>
        <source>Element %1 of %2</source>
        <translation>العنصر %1 من %2</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>غير جاهز</translation>
    </message>
    <message>
        <source>chars</source>
        <translation>محارف</translation>
    </message>
    <message>
        <source>Remove element %1 of %2</source>
        <translation>إزالة العنصر %1 من %2</translation>
    </message>
    <message>
        <source>Add to %1</source>
        <translation>إضافة إلى %1</translation>
    </message>
</context>
<context>
    <name>LivePlot</name>
    <message>
        <source>%1: no data</source>
        <translation>‏%1: لا توجد بيانات</translation>
    </message>
    <message>
        <source>%1: %2 to %3, from %4 to %5</source>
        <translation>‏%1: %2 إلى %3، من %4 إلى %5</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>راسب</translation>
    </message>
    <message>
        <source>Marginal</source>
        <translation>حدّي</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>ناجح</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>‏%1.</translation>
    </message>
    <message>
        <source>At the cursor: %1.</source>
        <translation>عند المؤشر: %1.</translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>Go on</source>
        <translation>متابعة</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>التغييرات</translation>
    </message>
    <message>
        <source>No changes yet</source>
        <translation>لا توجد تغييرات بعد</translation>
    </message>
    <message>
        <source>What services report is shown as it comes.</source>
        <translation>يظهر ما تبلّغ عنه الخدمات فور وروده.</translation>
    </message>
    <message>
        <source>Changes: %L1</source>
        <translation>التغييرات: %L1</translation>
    </message>
    <message>
        <source>fallen out: %L1</source>
        <translation>سقطت: %L1</translation>
    </message>
    <message>
        <source>missed while paused: %L1</source>
        <translation>فاتت أثناء الإيقاف: %L1</translation>
    </message>
    <message>
        <source>Save as recording</source>
        <translation>حفظ كتسجيل</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>TCP loopback test</source>
        <translation>اختبار حلقة TCP</translation>
    </message>
    <message>
        <source>The file is damaged. What could be read of it is shown; something may be missing.</source>
        <translation>الملف تالف. يُعرض ما أمكنت قراءته؛ وقد ينقص شيء.</translation>
    </message>
    <message>
        <source>Opening the file …</source>
        <translation>جارٍ فتح الملف …</translation>
    </message>
</context>
<context>
    <name>MomentEntry</name>
    <message>
        <source>Not before %1</source>
        <translation>ليس قبل %1</translation>
    </message>
    <message>
        <source>Not after %1</source>
        <translation>ليس بعد %1</translation>
    </message>
    <message>
        <source>This is not a date, such as %1</source>
        <translation>هذا ليس تاريخًا مثل %1</translation>
    </message>
    <message>
        <source>This is not a time, such as %1</source>
        <translation>هذا ليس وقتًا مثل %1</translation>
    </message>
    <message>
        <source>This is not a date and time, such as %1</source>
        <translation>هذا ليس تاريخًا ووقتًا مثل %1</translation>
    </message>
    <message>
        <source>Choose: %1</source>
        <translation>اختيار: %1</translation>
    </message>
    <message>
        <source>such as %1</source>
        <translation>مثل %1</translation>
    </message>
</context>
<context>
    <name>MomentPicker</name>
    <message>
        <source>Year</source>
        <translation>السنة</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>الشهر</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>الساعة</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>الدقيقة</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>اختيار</translation>
    </message>
</context>
<context>
    <name>NotificationDialog</name>
    <message>
        <source>%1 more</source>
        <translation>‏%1 أخرى</translation>
    </message>
    <message>
        <source>No</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
</context>
<context>
    <name>NotificationMark</name>
    <message>
        <source>Error</source>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>سؤال</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>إشعار</translation>
    </message>
</context>
<context>
    <name>NotificationTray</name>
    <message>
        <source>Notifications (%1)</source>
        <translation>الإشعارات (%1)</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>الإشعارات</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>مسح الكل</translation>
    </message>
    <message>
        <source>Dismiss %1</source>
        <translation>إزالة %1</translation>
    </message>
    <message>
        <source>No notifications</source>
        <translation>لا توجد إشعارات</translation>
    </message>
</context>
<context>
    <name>NotificationsPage</name>
    <message>
        <source>Notifications</source>
        <translation>الإشعارات</translation>
    </message>
</context>
<context>
    <name>NumberEntry</name>
    <message>
        <source>Use &quot;%1&quot; as the decimal separator</source>
        <translation>استخدم &quot;%1&quot; فاصلًا عشريًا</translation>
    </message>
    <message>
        <source>This is not a number</source>
        <translation>هذا ليس رقمًا</translation>
    </message>
    <message>
        <source>A whole number is required</source>
        <translation>يلزم رقم صحيح</translation>
    </message>
    <message>
        <source>Decimals: at most %1</source>
        <translation>المنازل العشرية: %1 على الأكثر</translation>
    </message>
</context>
<context>
    <name>NumberPad</name>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>تغيير الإشارة</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>e, exponent of ten</source>
        <translation>e، أس العشرة</translation>
    </message>
</context>
<context>
    <name>Overlays</name>
    <message>
        <source>Desk</source>
        <translation>المنضدة</translation>
    </message>
</context>
<context>
    <name>OwnLibrary</name>
    <message>
        <source>%1 is not installed</source>
        <translation>‏%1 غير مثبت</translation>
    </message>
</context>
<context>
    <name>PDFFile</name>
    <message>
        <source>Unknown error</source>
        <translation>خطأ غير معروف</translation>
    </message>
    <message>
        <source>The path contains a NUL character</source>
        <translation>يحتوي المسار على المحرف NUL</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>ليس ملفًا عاديًا</translation>
    </message>
    <message>
        <source>It has more than 64 MiB</source>
        <translation>يتجاوز 64 MiB</translation>
    </message>
    <message>
        <source>Reading the file takes too long</source>
        <translation>تستغرق قراءة الملف وقتًا طويلًا</translation>
    </message>
    <message>
        <source>The file cannot be tried first: %1</source>
        <translation>تتعذر تجربة الملف أولًا: %1</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>الملف فارغ</translation>
    </message>
    <message>
        <source>The file is not safe to read</source>
        <translation>قراءة الملف غير آمنة</translation>
    </message>
    <message>
        <source>%1 gives no answer</source>
        <translation>‏%1 لا يستجيب</translation>
    </message>
    <message>
        <source>The file is encrypted, and writing it would damage it</source>
        <translation>الملف مشفّر والكتابة فيه ستتلفه</translation>
    </message>
    <message>
        <source>The file does not begin like a PDF file</source>
        <translation>لا يبدأ الملف كملف PDF</translation>
    </message>
    <message>
        <source>The PDF file has no end</source>
        <translation>ملف PDF بلا نهاية</translation>
    </message>
    <message>
        <source>The PDF file has no table of its objects</source>
        <translation>لا يحتوي ملف PDF على جدول لكائناته</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
</context>
<context>
    <name>Paths</name>
    <message>
        <source>UIUTILS_ROOT names a folder that is not written in the encoding of file names (%1). None of the instrument&apos;s files are read or written. Name another folder.</source>
        <translation>يشير UIUTILS_ROOT إلى مجلد غير مكتوب بترميز أسماء الملفات (%1). لن يُقرأ أو يُكتب أي ملف من ملفات الجهاز. حدّد مجلدًا آخر.</translation>
    </message>
</context>
<context>
    <name>PdfViewer</name>
    <message>
        <source>The screen could not be loaded, for the reason given above. Check that the QML modules QtQuick, QtQuick.Controls, QtQuick.Layouts and QtQuick.Window are installed.</source>
        <translation>تعذر تحميل الشاشة للسبب المذكور أعلاه. تحقق من تثبيت وحدات QML وهي QtQuick وQtQuick.Controls وQtQuick.Layouts وQtQuick.Window.</translation>
    </message>
    <message>
        <source>There is no display to show %1 on. Set DISPLAY or WAYLAND_DISPLAY, or QT_QPA_PLATFORM to what draws on this screen, such as eglfs or linuxfb.</source>
        <translation>لا توجد شاشة لعرض %1. اضبط DISPLAY أو WAYLAND_DISPLAY، أو QT_QPA_PLATFORM على ما يرسم على هذه الشاشة، مثل eglfs أو linuxfb.</translation>
    </message>
    <message>
        <source>Shows a PDF file, also one that is compressed (.pdf.gz), on a touch screen or in a window.

Exit status: 0 done, 1 the file could not be shown, 2 wrong command line.</source>
        <translation>يعرض ملف PDF، ولو كان مضغوطًا (.pdf.gz)، على شاشة لمس أو في نافذة.

رمز الخروج: 0 تم، 1 تعذر عرض الملف، 2 سطر أوامر خاطئ.</translation>
    </message>
    <message>
        <source>The PDF file to show.</source>
        <translation>ملف PDF المراد عرضه.</translation>
    </message>
    <message>
        <source>The screen has &lt;number&gt; dots per inch, 1 to %1 (default: %2). At 100 % a page has its natural size there.</source>
        <translation>كثافة الشاشة &lt;number&gt; نقطة في البوصة، من 1 إلى %1 (الافتراضي: %2). عند 100 % تكون الصفحة بحجمها الطبيعي.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>رقم</translation>
    </message>
    <message>
        <source>Fill the screen, without a frame. Under a window system that arranges windows itself, the window is one among others.</source>
        <translation>ملء الشاشة دون إطار. وفي نظام يرتب النوافذ بنفسه تكون نافذة كغيرها.</translation>
    </message>
    <message>
        <source>Call the window &lt;title&gt; (default: the file&apos;s name).</source>
        <translation>تسمية النافذة &lt;title&gt; (الافتراضي: اسم الملف).</translation>
    </message>
    <message>
        <source>title</source>
        <translation>عنوان</translation>
    </message>
    <message>
        <source>Use the input plug-in &lt;name:device&gt;; may be given more than once. Has no effect if a window system provides the input or the device does not exist.</source>
        <translation>استخدام ملحق الإدخال &lt;name:device&gt;؛ يمكن تكراره. لا أثر له إن كان نظام النوافذ يوفر الإدخال أو لم يوجد الجهاز.</translation>
    </message>
    <message>
        <source>name:device</source>
        <translation>name:device</translation>
    </message>
    <message>
        <source>Name one PDF file to show.</source>
        <translation>حدّد ملف PDF واحدًا لعرضه.</translation>
    </message>
    <message>
        <source>--dpy needs a number from 1 to %1.</source>
        <translation>يتطلب --dpy رقمًا من 1 إلى %1.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>لا يوجد ملف كهذا.</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>هذا ليس ملفًا.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>تتعذر قراءة الملف.</translation>
    </message>
    <message>
        <source>The file holds more than %1 MiB, which is more than this unit can show.</source>
        <translation>يتجاوز الملف %1 MiB، وهذا أكبر مما يمكن للجهاز عرضه.</translation>
    </message>
    <message>
        <source>This is not a PDF file.</source>
        <translation>هذا ليس ملف PDF.</translation>
    </message>
    <message>
        <source>The file is damaged or incomplete.</source>
        <translation>الملف تالف أو غير مكتمل.</translation>
    </message>
    <message>
        <source>The file is encrypted and can only be opened with a password.</source>
        <translation>الملف مشفّر ولا يُفتح إلا بكلمة مرور.</translation>
    </message>
    <message>
        <source>The file has no pages.</source>
        <translation>لا يحتوي الملف على صفحات.</translation>
    </message>
    <message>
        <source>The file has more than %1 pages, which is more than this unit can show.</source>
        <translation>يتجاوز الملف %1 صفحة، وهذا أكثر مما يمكن للجهاز عرضه.</translation>
    </message>
    <message>
        <source>It may have been deleted or moved, or be on a USB drive that was removed. Choose another file, or save the report again.</source>
        <translation>ربما حُذف أو نُقل، أو كان على ذاكرة USB أُزيلت. اختر ملفًا آخر أو احفظ التقرير مجددًا.</translation>
    </message>
    <message>
        <source>Check that the drive is in place and that you may read the file.</source>
        <translation>تحقق من وجود محرك الأقراص ومن صلاحية قراءة الملف.</translation>
    </message>
    <message>
        <source>Copy it to a computer and open it there.</source>
        <translation>انسخه إلى حاسوب وافتحه هناك.</translation>
    </message>
    <message>
        <source>Choose a file that was saved as PDF.</source>
        <translation>اختر ملفًا حُفظ بتنسيق PDF.</translation>
    </message>
    <message>
        <source>Save the report again, or copy the file again from where it came.</source>
        <translation>احفظ التقرير مجددًا، أو انسخ الملف مجددًا من مصدره.</translation>
    </message>
    <message>
        <source>Open it on a computer, or ask whoever made it for a file without a password.</source>
        <translation>افتحه على حاسوب، أو اطلب من منشئه ملفًا دون كلمة مرور.</translation>
    </message>
    <message>
        <source>There is no language &quot;%1&quot;.</source>
        <translation>لا توجد لغة &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Speak the language of that code, such as &quot;de&quot; (default: that of the environment).</source>
        <translation>استخدام لغة هذا الرمز، مثل &quot;de&quot; (الافتراضي: لغة البيئة).</translation>
    </message>
    <message>
        <source>code</source>
        <translation>الرمز</translation>
    </message>
</context>
<context>
    <name>PendingChangeRow</name>
    <message>
        <source>Changed meanwhile</source>
        <translation>تغيّر في هذه الأثناء</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>الآن: %1</translation>
    </message>
    <message>
        <source>You have set: %1</source>
        <translation>القيمة التي ضبطتها: %1</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>تجاهل</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Set again</source>
        <translation>ضبط مجددًا</translation>
    </message>
</context>
<context>
    <name>PendingChangesView</name>
    <message>
        <source>Nothing waits</source>
        <translation>لا شيء قيد الانتظار</translation>
    </message>
    <message>
        <source>Settings that you change are listed here until they are applied.</source>
        <translation>تظهر هنا الإعدادات التي تغيّرها إلى أن تُطبَّق.</translation>
    </message>
    <message>
        <source>Changes that wait</source>
        <translation>التغييرات قيد الانتظار</translation>
    </message>
</context>
<context>
    <name>PeoplePage</name>
    <message>
        <source>People</source>
        <translation>الأشخاص</translation>
    </message>
    <message>
        <source>Technician</source>
        <translation>الفني</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>العميل</translation>
    </message>
    <message>
        <source>Known customers</source>
        <translation>العملاء المعروفون</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>غير محدد</translation>
    </message>
    <message>
        <source>Name, address or circuit</source>
        <translation>الاسم أو العنوان أو الدائرة</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>‏%1، %2</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>لا توجد مهام (%n)</numerusform>
            <numerusform>مهمة واحدة (%n)</numerusform>
            <numerusform>مهمتان (%n)</numerusform>
            <numerusform>%n مهام</numerusform>
            <numerusform>%n مهمة</numerusform>
            <numerusform>%n مهمة</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PicturePage</name>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
</context>
<context>
    <name>PlotImage</name>
    <message>
        <source>at least %1 %2</source>
        <translation>‏%1 %2 على الأقل</translation>
    </message>
    <message>
        <source>at most %1 %2</source>
        <translation>‏%1 %2 على الأكثر</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>و%1 أخرى</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>لا توجد بيانات</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>‏%1 ي</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>‏%1 س</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>‏%1 د</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>‏%1 ث</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>‏%1 إلى %2</translation>
    </message>
    <message>
        <source>beyond a limit</source>
        <translation>خارج حد</translation>
    </message>
    <message>
        <source>beyond a warning level</source>
        <translation>خارج مستوى تحذير</translation>
    </message>
</context>
<context>
    <name>PlovJsonDocument</name>
    <message>
        <source>%1: not a regular file</source>
        <translation>‏%1: ليس ملفًا عاديًا</translation>
    </message>
    <message>
        <source>%1: cannot be opened: %2</source>
        <translation>‏%1: يتعذر الفتح: %2</translation>
    </message>
    <message>
        <source>%1: larger than the %2 MiB that a document may have</source>
        <translation>‏%1: يتجاوز الحد المسموح للمستند وهو %2 MiB</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation>‏%1: تتعذر القراءة: %2</translation>
    </message>
    <message>
        <source>%1: holds more than the %2 objects and lists that a document may have</source>
        <translation>‏%1: يحتوي على أكثر من الحد المسموح للمستند وهو %2 من الكائنات والقوائم</translation>
    </message>
    <message>
        <source>%1:1:1: the root of the document is not an object</source>
        <translation>‏%1:1:1: جذر المستند ليس كائنًا</translation>
    </message>
</context>
<context>
    <name>PreviewDialog</name>
    <message>
        <source>The pages are being made</source>
        <translation>جارٍ إعداد الصفحات</translation>
    </message>
    <message>
        <source>There are no pages</source>
        <translation>لا توجد صفحات</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>الصفحة %1 من %2</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>تكبير</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>PreviewPages</name>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>الصفحة %1</translation>
    </message>
</context>
<context>
    <name>QuantityCard</name>
    <message>
        <source>%1, median: %2</source>
        <translation>‏%1، الوسيط: %2</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>العينة</translation>
    </message>
    <message>
        <source>No samples yet</source>
        <translation>لا توجد عينات بعد</translation>
    </message>
    <message>
        <source>%1 to %2, jitter %3</source>
        <translation>‏%1 إلى %2، الارتعاش %3</translation>
    </message>
</context>
<context>
    <name>RadixEntry</name>
    <message>
        <source>Only the digits %1 can be used here</source>
        <translation>لا يُقبل هنا إلا الأرقام %1</translation>
    </message>
</context>
<context>
    <name>Recording</name>
    <message>
        <source>%1 is not a file.</source>
        <translation>‏%1 ليس ملفًا.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>تتعذر قراءة %1: %2.</translation>
    </message>
    <message>
        <source>%1 has no service that can be replayed.</source>
        <translation>لا يحتوي %1 على أي خدمة يمكن إعادة تشغيلها.</translation>
    </message>
    <message>
        <source>broken lines: %1</source>
        <translation>الأسطر التالفة: %1</translation>
    </message>
    <message>
        <source>lines whose time goes backwards: %1</source>
        <translation>الأسطر التي يرجع وقتها إلى الوراء: %1</translation>
    </message>
    <message>
        <source>lines about items or services that are not there: %1</source>
        <translation>الأسطر التي تخص عناصر أو خدمات غير موجودة: %1</translation>
    </message>
    <message>
        <source>lines that do not fit their item: %1</source>
        <translation>الأسطر التي لا تناسب عنصرها: %1</translation>
    </message>
    <message>
        <source>lines beyond the limits: %1</source>
        <translation>الأسطر التي تتجاوز الحدود: %1</translation>
    </message>
    <message>
        <source>it ends in the middle</source>
        <translation>ينتهي في المنتصف</translation>
    </message>
    <message>
        <source>The recording is not sound and was played as far as it can be: %1.</source>
        <translation>التسجيل غير سليم وتمت إعادة تشغيله قدر الإمكان: %1.</translation>
    </message>
    <message>
        <source>%1 exists. Name another file, or remove that one.</source>
        <translation>‏%1 موجود بالفعل. حدد ملفًا آخر أو احذف هذا الملف.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>تتعذر كتابة %1: %2.</translation>
    </message>
    <message>
        <source>%1 is written too slowly. The recording ends here.</source>
        <translation>كتابة %1 بطيئة جدًا. ينتهي التسجيل هنا.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. The recording ends here.</source>
        <translation>تتعذر كتابة %1: %2. ينتهي التسجيل هنا.</translation>
    </message>
    <message>
        <source>%1 is not a recording of services.</source>
        <translation>‏%1 ليس تسجيلاً لخدمات.</translation>
    </message>
    <message>
        <source>%1 was recorded by a newer program, which writes another form. Use that one.</source>
        <translation>تم تسجيل %1 ببرنامج أحدث يكتب صيغة أخرى. استخدم ذلك البرنامج.</translation>
    </message>
    <message>
        <source>This is a recording: nothing can be started or stopped in it.</source>
        <translation>هذا تسجيل: لا يمكن بدء أي شيء فيه أو إيقافه.</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>ID: </source>
        <translation>المعرّف: </translation>
    </message>
    <message>
        <source>Tech: </source>
        <translation>الفني: </translation>
    </message>
    <message>
        <source>BAN: </source>
        <translation>BAN: </translation>
    </message>
    <message>
        <source>The schema %1 cannot be used: %2</source>
        <translation>يتعذر استخدام المخطط %1: %2</translation>
    </message>
    <message>
        <source>The report does not match the job schema: %1</source>
        <translation>لا يطابق التقرير مخطط المهمة: %1</translation>
    </message>
    <message>
        <source>There is no active job</source>
        <translation>لا توجد مهمة نشطة</translation>
    </message>
    <message>
        <source>The job has rejected the report: %1</source>
        <translation>رفضت المهمة التقرير: %1</translation>
    </message>
    <message>
        <source>The list of reports that are not synced was not changed.</source>
        <translation>لم تتغير قائمة التقارير غير المتزامنة.</translation>
    </message>
    <message>
        <source>The data of the job is not complete: it has no ID</source>
        <translation>بيانات المهمة غير مكتملة: لا يوجد معرّف</translation>
    </message>
    <message>
        <source>Job Manager</source>
        <translation>مدير المهام</translation>
    </message>
    <message>
        <source>View Report</source>
        <translation>عرض التقرير</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>XML</source>
        <translation>XML</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>التنسيق</translation>
    </message>
    <message>
        <source>Sync with Meridex</source>
        <translation>المزامنة مع Meridex</translation>
    </message>
    <message>
        <source>Report Copied</source>
        <translation>تم نسخ التقرير</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>تتعذر كتابة ⁦%1⁩: %2</translation>
    </message>
    <message>
        <source>the USB drive is not there</source>
        <translation>ذاكرة USB غير موجودة</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>تتعذر قراءة ⁦%1⁩: %2</translation>
    </message>
    <message>
        <source>it has more than 1 MiB</source>
        <translation>يتجاوز 1 MiB</translation>
    </message>
    <message>
        <source>it would have more than 1 MiB</source>
        <translation>سيتجاوز 1 MiB</translation>
    </message>
    <message>
        <source>Cannot lock %1: %2</source>
        <translation>يتعذر قفل ⁦%1⁩: %2</translation>
    </message>
    <message>
        <source>%1 contains a line feed</source>
        <translation>يحتوي %1 على فاصل أسطر</translation>
    </message>
    <message>
        <source>Cannot compress %1: %2</source>
        <translation>يتعذر ضغط ⁦%1⁩: %2</translation>
    </message>
    <message>
        <source>gzip is missing or has failed</source>
        <translation>برنامج gzip مفقود أو فشل</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>المزامنة</translation>
    </message>
    <message>
        <source>%1 is still on the list of reports that are not synced.</source>
        <translation>لا يزال ⁦%1⁩ في قائمة التقارير غير المتزامنة.</translation>
    </message>
    <message>
        <source>The cloud may take %1, although it is not to be synced.</source>
        <translation>قد تأخذ السحابة ⁦%1⁩ مع أنه لا ينبغي مزامنته.</translation>
    </message>
    <message>
        <source>Report Saved</source>
        <translation>تم حفظ التقرير</translation>
    </message>
    <message>
        <source>Report %1 saved
Folder: %2</source>
        <translation>تم حفظ التقرير ⁦%1⁩
المجلد: ⁦%2⁩</translation>
    </message>
    <message>
        <source>No format is chosen to save the report in.</source>
        <translation>لم يُحدَّد تنسيق لحفظ التقرير.</translation>
    </message>
    <message>
        <source>There is no format &quot;%1&quot; to save the report in.</source>
        <translation>لا يوجد تنسيق &quot;%1&quot; لحفظ التقرير.</translation>
    </message>
    <message>
        <source>Write Error</source>
        <translation>خطأ في الكتابة</translation>
    </message>
    <message>
        <source>There is not enough space to save the report.</source>
        <translation>لا توجد مساحة كافية لحفظ التقرير.</translation>
    </message>
    <message>
        <source>The results are too large to be kept before they are saved</source>
        <translation>النتائج أكبر من أن يُحتفظ بها قبل حفظها</translation>
    </message>
    <message>
        <source>There is not enough space to keep the results until they are saved</source>
        <translation>لا توجد مساحة كافية للاحتفاظ بالنتائج حتى حفظها</translation>
    </message>
    <message>
        <source>The results cannot be kept until they are saved: the disk does not take them</source>
        <translation>يتعذر الاحتفاظ بالنتائج حتى حفظها: القرص لا يقبلها</translation>
    </message>
    <message>
        <source>%1 files would be overwritten:</source>
        <translation>سيُستبدل %1 من الملفات:</translation>
    </message>
    <message>
        <source>The name does not have the required form</source>
        <translation>ليس الاسم بالشكل المطلوب</translation>
    </message>
    <message>
        <source>a NUL character</source>
        <translation>المحرف NUL</translation>
    </message>
</context>
<context>
    <name>ReportBuilder</name>
    <message>
        <source>Loopback TCP</source>
        <translation>TCP على الحلقة</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>الملخص</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>البدء</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>الخادم</translation>
    </message>
    <message>
        <source>%1, median</source>
        <translation>‏%1، الوسيط</translation>
    </message>
    <message>
        <source>%1, minimum</source>
        <translation>‏%1، الأدنى</translation>
    </message>
    <message>
        <source>%1, maximum</source>
        <translation>‏%1، الأقصى</translation>
    </message>
    <message>
        <source>%1, jitter</source>
        <translation>‏%1، الارتعاش</translation>
    </message>
    <message>
        <source>%1, limit</source>
        <translation>‏%1، الحد</translation>
    </message>
    <message>
        <source>%1 of each sample</source>
        <translation>‏%1 لكل عينة</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>العينات</translation>
    </message>
    <message>
        <source>Sample %1</source>
        <translation>العينة %1</translation>
    </message>
</context>
<context>
    <name>ReportPDF</name>
    <message>
        <source>there is not enough memory for its pages</source>
        <translation>الذاكرة غير كافية لصفحاته</translation>
    </message>
    <message>
        <source>Unit ID: %1</source>
        <translation>معرّف الوحدة: %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>الصفحة %1 من %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>‏%1: %2</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>رسم</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>مخطط بياني</translation>
    </message>
    <message>
        <source>Cannot print %1: %2</source>
        <translation>تتعذر طباعة ⁦%1⁩: %2</translation>
    </message>
    <message>
        <source>another file is being printed</source>
        <translation>تجري طباعة ملف آخر</translation>
    </message>
    <message>
        <source>the program has no fonts, because it is not a QGuiApplication</source>
        <translation>لا توجد خطوط لأن البرنامج ليس QGuiApplication</translation>
    </message>
    <message>
        <source>Solvant Report</source>
        <translation>تقرير Solvant</translation>
    </message>
    <message>
        <source>%1 - Continued</source>
        <translation>‏%1 - تابع</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>الشعار</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>Preview</source>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Saved in %1</source>
        <translation>محفوظ في ⁦%1⁩</translation>
    </message>
    <message>
        <source>Will be saved in %1</source>
        <translation>سيُحفظ في ⁦%1⁩</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>التقرير</translation>
    </message>
    <message>
        <source>There is no USB drive: files stay on the unit.</source>
        <translation>لا توجد ذاكرة USB: تبقى الملفات على الجهاز.</translation>
    </message>
    <message>
        <source>On the report</source>
        <translation>في التقرير</translation>
    </message>
    <message>
        <source>No job</source>
        <translation>لا توجد مهمة</translation>
    </message>
</context>
<context>
    <name>ReportTemplate</name>
    <message>
        <source>Value</source>
        <translation>القيمة</translation>
    </message>
</context>
<context>
    <name>ResultsPage</name>
    <message>
        <source>Median %1, limit %2</source>
        <translation>الوسيط %1، %2</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Only failures</source>
        <translation>الراسب فقط</translation>
    </message>
    <message>
        <source>Sample %1</source>
        <translation>العينة %1</translation>
    </message>
    <message>
        <source>No samples yet</source>
        <translation>لا توجد عينات بعد</translation>
    </message>
    <message>
        <source>Nothing failed</source>
        <translation>لا يوجد راسب</translation>
    </message>
    <message>
        <source>All samples meet the limit.</source>
        <translation>جميع العينات تحقق الحد.</translation>
    </message>
    <message>
        <source>Go to Run</source>
        <translation>إلى القياس</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>النتائج</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>بالترتيب</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>الأصغر</translation>
    </message>
    <message>
        <source>Largest</source>
        <translation>الأكبر</translation>
    </message>
</context>
<context>
    <name>ReviewPage</name>
    <message>
        <source>Review</source>
        <translation>مراجعة</translation>
    </message>
    <message>
        <source>All of it is applied together, or nothing.</source>
        <translation>يُطبَّق كل ذلك معًا، أو لا شيء.</translation>
    </message>
    <message>
        <source>Revert all</source>
        <translation>التراجع عن الكل</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>تطبيق</translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message>
        <source>Run</source>
        <translation>القياس</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>بدء</translation>
    </message>
    <message>
        <source>%1, server at %2</source>
        <translation>‏%1، الخادم: %2</translation>
    </message>
</context>
<context>
    <name>SaveProgress</name>
    <message>
        <source>Cancelling the save</source>
        <translation>جارٍ إلغاء الحفظ</translation>
    </message>
    <message>
        <source>Saving the report</source>
        <translation>جارٍ حفظ التقرير</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>‏%1 %</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>SchemaValidator</name>
    <message>
        <source>line %1: %2</source>
        <translation>السطر %1: %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>و%1 أخرى</translation>
    </message>
    <message>
        <source>%1 is not a file in the folder of the schema</source>
        <translation>‏%1 ليس ملفًا في مجلد المخطط</translation>
    </message>
    <message>
        <source>document type declarations are not accepted</source>
        <translation>لا تُقبل تعريفات نوع المستند</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>تتعذر قراءة %1</translation>
    </message>
    <message>
        <source>%1 is not an XML schema</source>
        <translation>‏%1 ليس مخطط XML</translation>
    </message>
    <message>
        <source>there is no schema to check against</source>
        <translation>لا يوجد مخطط للتحقق</translation>
    </message>
    <message>
        <source>the text cannot be read as XML</source>
        <translation>تتعذر قراءة النص بصيغة XML</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>مسح البحث</translation>
    </message>
</context>
<context>
    <name>Section</name>
    <message>
        <source>Expanded</source>
        <translation>موسّع</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>مطوي</translation>
    </message>
</context>
<context>
    <name>ServiceBanner</name>
    <message>
        <source>&quot;%1&quot; does not answer. What is shown may be old; the page goes on by itself when the service is back.</source>
        <translation>‏&quot;%1&quot; لا يجيب. قد يكون المعروض قديمًا؛ وتتابع الصفحة تلقائيًا عند عودة الخدمة.</translation>
    </message>
</context>
<context>
    <name>ServiceBus</name>
    <message>
        <source>The service %1 is run by another user and is not used.</source>
        <translation>يشغّل مستخدم آخر الخدمة %1، ولن تُستخدم.</translation>
    </message>
    <message>
        <source>The service %1 cannot be reached. Try again when it runs.</source>
        <translation>يتعذر الوصول إلى الخدمة %1. حاول مجددًا عندما تعمل.</translation>
    </message>
    <message>
        <source>There is no object %1.</source>
        <translation>لا يوجد كائن %1.</translation>
    </message>
    <message>
        <source>The name of the service %1 is too long for a bus.</source>
        <translation>اسم الخدمة %1 طويل جدًا على الناقل.</translation>
    </message>
    <message>
        <source>A service %1 is published already.</source>
        <translation>سبق نشر خدمة %1.</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>أُغلق الاتصال</translation>
    </message>
    <message>
        <source>it does not take the connection</source>
        <translation>لا يقبل الاتصال</translation>
    </message>
    <message>
        <source>The system bus cannot be reached: %1.</source>
        <translation>يتعذر الوصول إلى ناقل النظام: %1.</translation>
    </message>
    <message>
        <source>The session bus cannot be reached: %1.</source>
        <translation>يتعذر الوصول إلى ناقل الجلسة: %1.</translation>
    </message>
    <message>
        <source>The service %1 does not say which version of the interface it has: %2</source>
        <translation>لا تذكر الخدمة %1 إصدار واجهتها: %2</translation>
    </message>
    <message>
        <source>The service %1 has version %2 of the interface, and this program knows version %3. Use programs of one release.</source>
        <translation>الخدمة %1 لها الإصدار %2 من الواجهة، وهذا البرنامج يعرف الإصدار %3. استخدم برامج من الإصدار نفسه.</translation>
    </message>
    <message>
        <source>The service %1 takes no more clients: %2</source>
        <translation>لا تقبل الخدمة %1 عملاء آخرين: %2</translation>
    </message>
    <message>
        <source>The items of the service %1 cannot be read: %2</source>
        <translation>تتعذر قراءة عناصر الخدمة %1: %2</translation>
    </message>
    <message>
        <source>The items of the service %1 cannot be read: they are not what the interface says.</source>
        <translation>تتعذر قراءة عناصر الخدمة %1: لا تطابق تعريف الواجهة.</translation>
    </message>
    <message>
        <source>%1 cannot be set: the value is too large, or a text of it holds a NUL.</source>
        <translation>يتعذر ضبط %1: القيمة كبيرة جدًا أو يحتوي أحد نصوصها على NUL.</translation>
    </message>
    <message>
        <source>%1 was not sent: its argument is too large, or holds a NUL.</source>
        <translation>لم يُرسل %1: الوسيط كبير جدًا أو يحتوي على NUL.</translation>
    </message>
    <message>
        <source>The service %1 has not answered an earlier request yet. Try again when it does.</source>
        <translation>لم تُجب الخدمة %1 عن طلب سابق بعد. حاول مجددًا عندما تجيب.</translation>
    </message>
    <message>
        <source>The service %1 ended before it answered. Try again when it runs.</source>
        <translation>انتهت الخدمة %1 قبل أن تجيب. حاول مجددًا عندما تعمل.</translation>
    </message>
    <message>
        <source>The service %1 did not answer within %2 ms. It may still carry out the request.</source>
        <translation>لم تُجب الخدمة %1 خلال %2 ms. قد تنفذ الطلب لاحقًا.</translation>
    </message>
    <message>
        <source>There are no properties of %1.</source>
        <translation>لا توجد خصائص لـ %1.</translation>
    </message>
    <message>
        <source>There is no property %1.</source>
        <translation>لا توجد خاصية %1.</translation>
    </message>
    <message>
        <source>The properties of a service are read-only.</source>
        <translation>خصائص الخدمة للقراءة فقط.</translation>
    </message>
    <message>
        <source>There is no method %1.%2.</source>
        <translation>لا توجد طريقة %1.%2.</translation>
    </message>
    <message>
        <source>%1 takes arguments of the signature &quot;%2&quot;, not &quot;%3&quot;.</source>
        <translation>يقبل %1 وسائط بالتوقيع &quot;%2&quot; وليس &quot;%3&quot;.</translation>
    </message>
    <message>
        <source>The items of the service are too large for a message.</source>
        <translation>عناصر الخدمة أكبر من أن تسعها رسالة.</translation>
    </message>
    <message>
        <source>The service has as many clients as it can serve.</source>
        <translation>بلغت الخدمة الحد الأقصى من العملاء.</translation>
    </message>
    <message>
        <source>The value cannot be read.</source>
        <translation>تتعذر قراءة القيمة.</translation>
    </message>
    <message>
        <source>The service has too much to do. Try again later.</source>
        <translation>الخدمة مشغولة جدًا. حاول لاحقًا.</translation>
    </message>
    <message>
        <source>The service %1 was withdrawn before it could answer.</source>
        <translation>سُحبت الخدمة %1 قبل أن تتمكن من الإجابة.</translation>
    </message>
    <message>
        <source>The service %1 answered something that the interface does not know.</source>
        <translation>أجابت الخدمة %1 بما لا تعرفه الواجهة.</translation>
    </message>
</context>
<context>
    <name>ServiceCard</name>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>لا عناصر</numerusform>
            <numerusform>عنصر واحد</numerusform>
            <numerusform>عنصران</numerusform>
            <numerusform>%n عناصر</numerusform>
            <numerusform>%n عنصرًا</numerusform>
            <numerusform>%n عنصر</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be reached</source>
        <translation>لا يمكن الوصول إليها</translation>
    </message>
    <message>
        <source>answers slowly</source>
        <translation>تستجيب ببطء</translation>
    </message>
    <message>
        <source>rejects every change</source>
        <translation>ترفض كل تغيير</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>سريع</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>بطيء</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>قبول</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>رفض</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>عودة</translation>
    </message>
    <message>
        <source>Vanish</source>
        <translation>اختفاء</translation>
    </message>
    <message>
        <source>The service lives in another process. It can be watched and edited, not disturbed.</source>
        <translation>تعمل الخدمة في عملية أخرى. يمكن مراقبتها وتعديلها، لا تعطيلها.</translation>
    </message>
    <message>
        <source>A transaction runs</source>
        <translation>معاملة جارية</translation>
    </message>
    <message>
        <source>Not sent</source>
        <translation>لم يُرسل</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>الآن: %1</translation>
    </message>
    <message>
        <source>Nothing is changed yet.</source>
        <translation>لم يتغير شيء بعد.</translation>
    </message>
    <message>
        <source>Pending changes</source>
        <translation>التغييرات قيد الانتظار</translation>
    </message>
</context>
<context>
    <name>ServiceFile</name>
    <message>
        <source>the id %1 stands twice</source>
        <translation>المعرّف %1 مكرر</translation>
    </message>
    <message>
        <source>the id %1 lacks its category or the colon at its end, or has more than %2 characters</source>
        <translation>ينقص المعرّف %1 فئته أو النقطتان في آخره، أو يتجاوز %2 محرفًا</translation>
    </message>
    <message>
        <source>the type %1 of %2 is unknown</source>
        <translation>النوع %1 لـ %2 غير معروف</translation>
    </message>
    <message>
        <source>the type %1 and the id %2 disagree on whether it is an array</source>
        <translation>النوع %1 والمعرّف %2 لا يتفقان على كونه مصفوفة</translation>
    </message>
    <message>
        <source>the type %1 and the id %2 disagree on whether it is an action</source>
        <translation>النوع %1 والمعرّف %2 لا يتفقان على كونه إجراءً</translation>
    </message>
    <message>
        <source>an aggregate or table without members</source>
        <translation>تجميعة أو جدول بلا عناصر</translation>
    </message>
    <message>
        <source>the type %1 has no members</source>
        <translation>ليس للنوع %1 عناصر</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; is empty or appears twice</source>
        <translation>الاسم &quot;%1&quot; فارغ أو مكرر</translation>
    </message>
    <message>
        <source>a member cannot have the type %1</source>
        <translation>لا يمكن أن يكون العنصر من النوع %1</translation>
    </message>
    <message>
        <source>the type %1 has no choices</source>
        <translation>ليس للنوع %1 خيارات</translation>
    </message>
    <message>
        <source>only an action can have &quot;does&quot;, not the type %1</source>
        <translation>لا يمكن إلا للإجراء أن يحتوي على &quot;does&quot;، وليس النوع %1</translation>
    </message>
    <message>
        <source>a negative delay</source>
        <translation>تأخير سالب</translation>
    </message>
    <message>
        <source>only a text that is a result can be clearable</source>
        <translation>لا يقبل الإفراغ إلا نص هو نتيجة</translation>
    </message>
    <message>
        <source>a precision outside 0 to %1</source>
        <translation>دقة خارج المجال من 0 إلى %1</translation>
    </message>
    <message>
        <source>/does/set: there is no item %1</source>
        <translation>/does/set: لا يوجد عنصر %1</translation>
    </message>
    <message>
        <source>/does/set: the value of %1: %2</source>
        <translation>/does/set: قيمة %1: %2</translation>
    </message>
    <message>
        <source>a mount point begins with a slash</source>
        <translation>تبدأ نقطة الوصل بشرطة مائلة</translation>
    </message>
    <message>
        <source>/service: a name has 1 to %1 characters</source>
        <translation>/service: يتكون الاسم من 1 إلى %1 محرفًا</translation>
    </message>
    <message>
        <source>the id %1 appears twice</source>
        <translation>المعرّف %1 مكرر</translation>
    </message>
    <message>
        <source>the value %1 appears twice or is negative</source>
        <translation>القيمة %1 مكررة أو سالبة</translation>
    </message>
    <message>
        <source>a value of this type has no limits</source>
        <translation>لا حدود لقيمة من هذا النوع</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>ليس رقمًا</translation>
    </message>
    <message>
        <source>the minimum is above the maximum</source>
        <translation>الحد الأدنى أكبر من الحد الأقصى</translation>
    </message>
    <message>
        <source>%1: not a folder of service files, or not readable</source>
        <translation>‏%1: ليس مجلد ملفات خدمات، أو تتعذر قراءته</translation>
    </message>
    <message>
        <source>the program</source>
        <translation>البرنامج</translation>
    </message>
    <message>
        <source>/service: &quot;%1&quot; is published already by %2</source>
        <translation>/service: سبق أن نشر %2 الخدمة &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the service %1 has an item %2 already</source>
        <translation>لدى الخدمة %1 عنصر %2 مسبقًا</translation>
    </message>
    <message>
        <source>not of the type %1</source>
        <translation>ليس من النوع %1</translation>
    </message>
    <message>
        <source>a service file may not say this here; uiutils-check tells what it may</source>
        <translation>لا يجوز أن يرد هذا هنا في ملف خدمة؛ يبيّن uiutils-check ما يجوز</translation>
    </message>
</context>
<context>
    <name>ServiceItem</name>
    <message>
        <source>Account ID</source>
        <translation>معرّف الحساب</translation>
    </message>
    <message>
        <source>Active Work Order</source>
        <translation>أمر العمل النشط</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Attach Report</source>
        <translation>إرفاق التقرير</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>Backscatter</source>
        <translation>التشتت الخلفي</translation>
    </message>
    <message>
        <source>Base Unit</source>
        <translation>الوحدة الأساسية</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>البطارية</translation>
    </message>
    <message>
        <source>Cable</source>
        <translation>الكابل</translation>
    </message>
    <message>
        <source>Calibrate</source>
        <translation>معايرة</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>المعايرة</translation>
    </message>
    <message>
        <source>Circuit ID</source>
        <translation>معرّف الدائرة</translation>
    </message>
    <message>
        <source>Collector</source>
        <translation>المجمّع</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>المكونات</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>جهة الاتصال</translation>
    </message>
    <message>
        <source>Customer Fields in Reports</source>
        <translation>حقول العميل في التقارير</translation>
    </message>
    <message>
        <source>Customer Name</source>
        <translation>اسم العميل</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>الشاشة</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>المدة</translation>
    </message>
    <message>
        <source>Ethernet Module</source>
        <translation>وحدة Ethernet</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>الأحداث</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>الاسم الأول</translation>
    </message>
    <message>
        <source>Internal</source>
        <translation>داخلي</translation>
    </message>
    <message>
        <source>Internal and USB</source>
        <translation>داخلي وUSB</translation>
    </message>
    <message>
        <source>Job Active</source>
        <translation>المهمة نشطة</translation>
    </message>
    <message>
        <source>Job BAN</source>
        <translation>BAN المهمة</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>معرّف المهمة</translation>
    </message>
    <message>
        <source>Job Technician</source>
        <translation>فني المهمة</translation>
    </message>
    <message>
        <source>Keep Report Name</source>
        <translation>الاحتفاظ باسم التقرير</translation>
    </message>
    <message>
        <source>Laser Power</source>
        <translation>قدرة الليزر</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>اسم العائلة</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>الطول</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>الحدود</translation>
    </message>
    <message>
        <source>Link Loss</source>
        <translation>فقد الوصلة</translation>
    </message>
    <message>
        <source>Manifest</source>
        <translation>البيان</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>يدوي</translation>
    </message>
    <message>
        <source>Maximum Round-Trip Time</source>
        <translation>أقصى زمن ذهاب وإياب</translation>
    </message>
    <message>
        <source>Message Size</source>
        <translation>حجم الرسالة</translation>
    </message>
    <message>
        <source>Minimum Throughput</source>
        <translation>أدنى معدل نقل</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>الوضع</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>الإزاحة</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>الهاتف</translation>
    </message>
    <message>
        <source>Proposed Report Name</source>
        <translation>اسم التقرير المقترح</translation>
    </message>
    <message>
        <source>Pulse Width</source>
        <translation>عرض النبضة</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>المدى</translation>
    </message>
    <message>
        <source>Real time</source>
        <translation>الوقت الحقيقي</translation>
    </message>
    <message>
        <source>Reports Not Synced</source>
        <translation>التقارير غير المتزامنة</translation>
    </message>
    <message>
        <source>Return Loss</source>
        <translation>فقد الارتداد</translation>
    </message>
    <message>
        <source>Round-Trip Samples</source>
        <translation>عينات الذهاب والإياب</translation>
    </message>
    <message>
        <source>Round-trip time</source>
        <translation>زمن الذهاب والإياب</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>العينة</translation>
    </message>
    <message>
        <source>Save Location</source>
        <translation>موقع الحفظ</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>الجلسة</translation>
    </message>
    <message>
        <source>Splitter Stages</source>
        <translation>مراحل المقسّمات</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>بدء</translation>
    </message>
    <message>
        <source>State</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Store Traces</source>
        <translation>حفظ المنحنيات</translation>
    </message>
    <message>
        <source>Tech ID</source>
        <translation>معرّف الفني</translation>
    </message>
    <message>
        <source>Technician Fields in Reports</source>
        <translation>حقول الفني في التقارير</translation>
    </message>
    <message>
        <source>Test Label</source>
        <translation>تسمية الاختبار</translation>
    </message>
    <message>
        <source>Test Type</source>
        <translation>نوع الاختبار</translation>
    </message>
    <message>
        <source>Throughput</source>
        <translation>معدل النقل</translation>
    </message>
    <message>
        <source>Throughput Samples</source>
        <translation>عينات معدل النقل</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>USB Attached</source>
        <translation>USB موصول</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>الإصدارات</translation>
    </message>
    <message>
        <source>Wavelength</source>
        <translation>الطول الموجي</translation>
    </message>
    <message>
        <source>Workflow</source>
        <translation>سير العمل</translation>
    </message>
    <message>
        <source>Worst Event</source>
        <translation>أسوأ حدث</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>قيد الشحن</translation>
    </message>
    <message>
        <source>Close Job</source>
        <translation>إغلاق المهمة</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>العملاء</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>داكن</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>المهام</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>الوصلة</translation>
    </message>
    <message>
        <source>Link Speed</source>
        <translation>سرعة الوصلة</translation>
    </message>
    <message>
        <source>Open Job</source>
        <translation>فتح المهمة</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>الصوت</translation>
    </message>
    <message>
        <source>Sunlight</source>
        <translation>ضوء الشمس</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>السمة</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدم</translation>
    </message>
    <message>
        <source>Received Power</source>
        <translation>القدرة المستقبلة</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Mbit/s</source>
        <translation>Mbit/s</translation>
    </message>
    <message>
        <source>The calibration can only be set at the factory.</source>
        <translation>لا يمكن ضبط المعايرة إلا في المصنع.</translation>
    </message>
    <message>
        <source>The calibration needs a reference fiber. Connect one and try again.</source>
        <translation>تحتاج المعايرة إلى ليف مرجعي. وصّل ليفًا وحاول مرة أخرى.</translation>
    </message>
    <message>
        <source>There is no light on the fiber. Check the connector, and start again.</source>
        <translation>لا يوجد ضوء في الليف. افحص الموصل وابدأ من جديد.</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>dBm</source>
        <translation>dBm</translation>
    </message>
    <message>
        <source>km</source>
        <translation>km</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>nm</source>
        <translation>nm</translation>
    </message>
    <message>
        <source>ns</source>
        <translation>ns</translation>
    </message>
</context>
<context>
    <name>ServiceRequest</name>
    <message>
        <source>Nothing was set. %1</source>
        <translation>لم يُضبط أي شيء. %1</translation>
    </message>
    <message>
        <source>not an object</source>
        <translation>ليس كائنًا</translation>
    </message>
    <message>
        <source>The settings for the service %1 are not a JSON object of values by name: %2.</source>
        <translation>إعدادات الخدمة %1 ليست كائن JSON من القيم حسب الاسم: %2.</translation>
    </message>
    <message>
        <source>There is no setting &quot;%1&quot;.</source>
        <translation>لا يوجد إعداد &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>%1 is named twice.</source>
        <translation>ذُكر %1 مرتين.</translation>
    </message>
    <message>
        <source>Settings applied: %1.</source>
        <translation>الإعدادات المطبّقة: %1.</translation>
    </message>
    <message>
        <source>The configuration of %1 was not saved: it needs a name, as in &quot;My settings,1&quot;.</source>
        <translation>لم تُحفظ تهيئة %1: تحتاج إلى اسم، مثل &quot;My settings,1&quot;.</translation>
    </message>
    <message>
        <source>The configuration &quot;%1&quot; was not saved: there is no folder to store it in.</source>
        <translation>لم تُحفظ التهيئة &quot;%1&quot;: لا يوجد مجلد لتخزينها.</translation>
    </message>
    <message>
        <source>The configuration was saved as &quot;%1&quot;.</source>
        <translation>حُفظت التهيئة باسم &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The service %1 cannot be reached. Try again when it runs.</source>
        <translation>يتعذر الوصول إلى الخدمة %1. حاول مجددًا عندما تعمل.</translation>
    </message>
    <message>
        <source>%1 cannot be set to %2: %3. Allowed: %4.</source>
        <translation>يتعذر ضبط %1 على %2: %3. المسموح: %4.</translation>
    </message>
    <message>
        <source>%1 cannot be set now: it is not ready. Try again later.</source>
        <translation>يتعذر ضبط %1 الآن: غير جاهز. حاول لاحقًا.</translation>
    </message>
    <message>
        <source>not available now</source>
        <translation>غير متاح الآن</translation>
    </message>
    <message>
        <source>The service %1 has no item %2 any more.</source>
        <translation>لم يعد لدى الخدمة %1 العنصر %2.</translation>
    </message>
    <message>
        <source>The action failed.</source>
        <translation>فشل الإجراء.</translation>
    </message>
    <message>
        <source>%1 cannot be set: it is not a setting.</source>
        <translation>يتعذر ضبط %1: ليس إعدادًا.</translation>
    </message>
    <message>
        <source>%1 cannot be set: it can only be emptied.</source>
        <translation>يتعذر ضبط %1: يمكن إفراغه فقط.</translation>
    </message>
    <message>
        <source>The service %1 has no item %2.</source>
        <translation>ليس لدى الخدمة %1 عنصر %2.</translation>
    </message>
    <message>
        <source>%1 cannot be carried out: the service %2 has no handler for it.</source>
        <translation>يتعذر تنفيذ %1: ليس لدى الخدمة %2 معالج له.</translation>
    </message>
    <message>
        <source>The service %1 has no action %2.</source>
        <translation>ليس لدى الخدمة %1 إجراء %2.</translation>
    </message>
    <message>
        <source>The service %1 did not answer within %2 ms. It may still carry out the request.</source>
        <translation>لم تُجب الخدمة %1 خلال %2 ms. قد تنفذ الطلب لاحقًا.</translation>
    </message>
</context>
<context>
    <name>ServiceState</name>
    <message>
        <source>It could not be renamed, so changed settings will be lost when the program ends.</source>
        <translation>تعذرت إعادة تسميته، لذا ستُفقد الإعدادات المتغيرة عند انتهاء البرنامج.</translation>
    </message>
    <message>
        <source>It was renamed to %1, and the settings are those of the service file.</source>
        <translation>أُعيدت تسميته إلى %1، والإعدادات هي إعدادات ملف الخدمة.</translation>
    </message>
    <message>
        <source>%1: /values: the object with the values by item id is missing.</source>
        <translation>‏%1: /values: كائن القيم حسب معرّف العنصر مفقود.</translation>
    </message>
    <message>
        <source>The settings of %1 could not be stored in %2: %3.</source>
        <translation>تعذر حفظ إعدادات %1 في %2: %3.</translation>
    </message>
    <message>
        <source>the folder cannot be created</source>
        <translation>يتعذر إنشاء المجلد</translation>
    </message>
    <message>
        <source>the service %1 has no such setting</source>
        <translation>ليس لدى الخدمة %1 هذا الإعداد</translation>
    </message>
    <message>
        <source>%1: %2: %3. The value stays in the file.</source>
        <translation>‏%1: %2: %3. تبقى القيمة في الملف.</translation>
    </message>
    <message>
        <source>this is not a setting</source>
        <translation>هذا ليس إعدادًا</translation>
    </message>
    <message>
        <source>%1 is %2, allowed: %3</source>
        <translation>‏%1: %2، المسموح: %3</translation>
    </message>
</context>
<context>
    <name>ServiceValue</name>
    <message>
        <source>%1 or more</source>
        <translation>‏%1 أو أكثر</translation>
    </message>
    <message>
        <source>%1 or less</source>
        <translation>‏%1 أو أقل</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>‏%1 إلى %2</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>عدد المحارف: %1</translation>
    </message>
    <message>
        <source>any number</source>
        <translation>أي رقم</translation>
    </message>
    <message>
        <source>the members %1</source>
        <translation>العناصر %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>قائمة</translation>
    </message>
    <message>
        <source>an aggregate</source>
        <translation>تجميعة</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>صواب أو خطأ</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>ليس رقمًا</translation>
    </message>
    <message>
        <source>not a finite number</source>
        <translation>ليس رقمًا منتهيًا</translation>
    </message>
    <message>
        <source>not a whole number</source>
        <translation>ليس رقمًا صحيحًا</translation>
    </message>
    <message>
        <source>out of range</source>
        <translation>خارج النطاق</translation>
    </message>
    <message>
        <source>neither true nor false</source>
        <translation>ليس صوابًا ولا خطأ</translation>
    </message>
    <message>
        <source>not a text</source>
        <translation>ليس نصًا</translation>
    </message>
    <message>
        <source>not a value that an item of this type can have</source>
        <translation>قيمة لا يمكن لعنصر من هذا النوع أن يأخذها</translation>
    </message>
    <message>
        <source>not a list</source>
        <translation>ليس قائمة</translation>
    </message>
    <message>
        <source>not an aggregate</source>
        <translation>ليس تجميعة</translation>
    </message>
    <message>
        <source>the member &quot;%1&quot; is missing</source>
        <translation>العنصر &quot;%1&quot; مفقود</translation>
    </message>
    <message>
        <source>member &quot;%1&quot;: %2</source>
        <translation>العنصر &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot;</source>
        <translation>لا يوجد عنصر &quot;%1&quot;</translation>
    </message>
    <message>
        <source>not a list of aggregates</source>
        <translation>ليس قائمة من التجميعات</translation>
    </message>
    <message>
        <source>element %1: %2</source>
        <translation>العنصر %1: %2</translation>
    </message>
    <message>
        <source>too short</source>
        <translation>قصير جدًا</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>طويل جدًا</translation>
    </message>
    <message>
        <source>not of the expected form</source>
        <translation>ليس بالشكل المتوقع</translation>
    </message>
    <message>
        <source>not one of the choices</source>
        <translation>ليس من الخيارات</translation>
    </message>
</context>
<context>
    <name>ServicesPage</name>
    <message>
        <source>No services yet</source>
        <translation>لا توجد خدمات بعد</translation>
    </message>
    <message>
        <source>They are shown when they come.</source>
        <translation>تظهر فور وصولها.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>kB</source>
        <translation>kB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>‏%1 %2</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>لقطة شاشة</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>الشاشة</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>الملفات</translation>
    </message>
    <message>
        <source>More</source>
        <translation>المزيد</translation>
    </message>
    <message>
        <source>User</source>
        <translation>المستخدم</translation>
    </message>
    <message>
        <source>Gallery of the kit</source>
        <translation>معرض المكونات</translation>
    </message>
    <message>
        <source>Everything that pages are made of</source>
        <translation>كل ما تتكون منه الصفحات</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>الجهاز</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
</context>
<context>
    <name>SetupPage</name>
    <message>
        <source>Set-up</source>
        <translation>الإعداد</translation>
    </message>
    <message>
        <source>Everything is applied.</source>
        <translation>كل شيء مطبَّق.</translation>
    </message>
    <message numerus="yes">
        <source>%n changes are not applied yet.</source>
        <translation>
            <numerusform>لا توجد تغييرات غير مطبَّقة (%n).</numerusform>
            <numerusform>تغيير واحد لم يُطبَّق بعد (%n).</numerusform>
            <numerusform>تغييران لم يُطبَّقا بعد (%n).</numerusform>
            <numerusform>%n تغييرات لم تُطبَّق بعد.</numerusform>
            <numerusform>%n تغييرًا لم يُطبَّق بعد.</numerusform>
            <numerusform>%n تغيير لم يُطبَّق بعد.</numerusform>
        </translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>مراجعة</translation>
    </message>
    <message>
        <source>There is no set-up</source>
        <translation>لا يوجد إعداد</translation>
    </message>
    <message>
        <source>The service loopback is not published.</source>
        <translation>الخدمة loopback غير منشورة.</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>الحدود</translation>
    </message>
    <message>
        <source>What passes, and what fails.</source>
        <translation>ما ينجح وما يرسب.</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>القياس</translation>
    </message>
    <message numerus="yes">
        <source>%n settings were changed meanwhile.</source>
        <translation>
            <numerusform>لم يتغيّر أي إعداد (%n).</numerusform>
            <numerusform>تغيّر إعداد واحد في هذه الأثناء (%n).</numerusform>
            <numerusform>تغيّر إعدادان في هذه الأثناء (%n).</numerusform>
            <numerusform>تغيّرت %n إعدادات في هذه الأثناء.</numerusform>
            <numerusform>تغيّر %n إعدادًا في هذه الأثناء.</numerusform>
            <numerusform>تغيّر %n إعداد في هذه الأثناء.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Page %1</source>
        <translation>الصفحة %1</translation>
    </message>
    <message>
        <source>Page %1 cannot be drawn. The file may be damaged.</source>
        <translation>يتعذر رسم الصفحة %1. قد يكون الملف تالفًا.</translation>
    </message>
</context>
<context>
    <name>Simulation</name>
    <message>
        <source>%1 is running already. Stop it, or wait until it is done.</source>
        <translation>‏%1 قيد التشغيل بالفعل. أوقفه أو انتظر حتى ينتهي.</translation>
    </message>
    <message>
        <source>the value of %1: %2</source>
        <translation>قيمة ⁦%1⁩: %2</translation>
    </message>
    <message>
        <source>%1: not a regular file</source>
        <translation>‏⁦%1⁩: ليس ملفًا عاديًا</translation>
    </message>
    <message>
        <source>%1: cannot be opened: %2</source>
        <translation>‏⁦%1⁩: يتعذر الفتح: %2</translation>
    </message>
    <message>
        <source>%1: larger than %2 MiB</source>
        <translation>‏⁦%1⁩: أكبر من %2&#xa0;MiB</translation>
    </message>
    <message>
        <source>%1: the first line names no column &quot;%2&quot;</source>
        <translation>‏⁦%1⁩: لا يذكر السطر الأول عمودًا باسم &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1: no line has a value of the item&apos;s type in the column</source>
        <translation>‏⁦%1⁩: لا يحتوي أي سطر في العمود على قيمة من نوع العنصر</translation>
    </message>
    <message>
        <source>only a result can move: settings are set by clients</source>
        <translation>لا يتغير تلقائيًا إلا النتائج: الإعدادات يضبطها العملاء</translation>
    </message>
    <message>
        <source>an item of the type %1 cannot move as &quot;%2&quot;</source>
        <translation>لا يمكن لعنصر من النوع ⁦%1⁩ أن يتغير بطريقة &quot;%2&quot;</translation>
    </message>
    <message>
        <source>has no meaning for &quot;%1&quot;</source>
        <translation>لا معنى له مع &quot;%1&quot;</translation>
    </message>
    <message>
        <source>must be greater than &quot;from&quot;</source>
        <translation>يجب أن يكون أكبر من &quot;from&quot;</translation>
    </message>
    <message>
        <source>only numbers have &quot;noise&quot;, &quot;from&quot; and &quot;to&quot;</source>
        <translation>الأرقام وحدها لها &quot;noise&quot; و&quot;from&quot; و&quot;to&quot;</translation>
    </message>
    <message>
        <source>%1. The item %2 stands still.</source>
        <translation>‏%1. العنصر ⁦%2⁩ لا يتغير.</translation>
    </message>
    <message>
        <source>%1: %2 of %3 lines have no value for %4 and are left out.</source>
        <translation>‏⁦%1⁩: %2 من %3 سطر بلا قيمة للعنصر ⁦%4⁩ وقد أُهملت.</translation>
    </message>
    <message>
        <source>only numbers and Booleans can be judged by their value</source>
        <translation>لا يُحكم بالقيمة إلا على الأرقام والقيم المنطقية</translation>
    </message>
    <message>
        <source>&quot;to&quot; is less than &quot;from&quot;</source>
        <translation>&quot;to&quot; أصغر من &quot;from&quot;</translation>
    </message>
    <message>
        <source>there is no item %1 that is a number</source>
        <translation>لا يوجد عنصر ⁦%1⁩ يكون رقمًا</translation>
    </message>
    <message>
        <source>there is no item %1 that has a value</source>
        <translation>لا يوجد عنصر ⁦%1⁩ له قيمة</translation>
    </message>
    <message>
        <source>a value of %1 is drawn from the numbers between &quot;from&quot; and &quot;to&quot;</source>
        <translation>تُسحب قيمة ⁦%1⁩ من الأرقام بين &quot;from&quot; و&quot;to&quot;</translation>
    </message>
    <message>
        <source>must be greater than &quot;for&quot;</source>
        <translation>يجب أن يكون أكبر من &quot;for&quot;</translation>
    </message>
    <message>
        <source>no id begins with &quot;%1&quot;</source>
        <translation>لا يبدأ أي معرّف بـ &quot;⁦%1⁩&quot;</translation>
    </message>
    <message>
        <source>there is no action %1 that &quot;runs&quot;</source>
        <translation>لا يوجد إجراء ⁦%1⁩ له &quot;runs&quot;</translation>
    </message>
    <message>
        <source>nothing happens: say what, such as &quot;vanish&quot;: true</source>
        <translation>لا يحدث شيء: اذكر ما يحدث، مثل &quot;vanish&quot;: true</translation>
    </message>
    <message>
        <source>%1 The item %2 stands still.</source>
        <translation>‏⁦%1⁩ يبقى العنصر ⁦%2⁩ ثابتًا.</translation>
    </message>
    <message>
        <source>%1: lines that cannot be read are left out: %2</source>
        <translation>‏⁦%1⁩: أسطر لا يمكن قراءتها وتُركت: %2</translation>
    </message>
    <message>
        <source>%1: the recording has no value of %2.</source>
        <translation>‏⁦%1⁩: لا يحوي التسجيل قيمة للعنصر ⁦%2⁩.</translation>
    </message>
</context>
<context>
    <name>SwitchEntry</name>
    <message>
        <source>On</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>إيقاف</translation>
    </message>
</context>
<context>
    <name>TemplateToHtmlWriter</name>
    <message>
        <source>Pass</source>
        <translation>ناجح</translation>
    </message>
    <message>
        <source>Marginal</source>
        <translation>حدّي</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>راسب</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>معرّف المهمة</translation>
    </message>
    <message>
        <source>Job BAN</source>
        <translation>BAN المهمة</translation>
    </message>
    <message>
        <source>Job Technician</source>
        <translation>فني المهمة</translation>
    </message>
    <message>
        <source>Lower limit</source>
        <translation>الحد السفلي</translation>
    </message>
    <message>
        <source>Upper limit</source>
        <translation>الحد العلوي</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>القيمة</translation>
    </message>
    <message>
        <source>Timestamp</source>
        <translation>الطابع الزمني</translation>
    </message>
    <message>
        <source>Overall Status</source>
        <translation>الحالة العامة</translation>
    </message>
    <message>
        <source>Assembly</source>
        <translation>الوحدة المجمّعة</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>المعرّف</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>العتاد</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>القسم</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>الإدخال</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>الوحدة</translation>
    </message>
    <message>
        <source>%1 unit</source>
        <translation>وحدة %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>%1 status</source>
        <translation>حالة %1</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>‏%1. %2</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>مخطط بياني</translation>
    </message>
    <message>
        <source>Legend of the plot</source>
        <translation>مفتاح المخطط البياني</translation>
    </message>
    <message>
        <source>Test Information</source>
        <translation>معلومات الاختبار</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Solvant System Information</source>
        <translation>معلومات نظام Solvant</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>التقرير</translation>
    </message>
    <message>
        <source>Table %1</source>
        <translation>الجدول %1</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>‏%1: %2 إلى %3</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>‏%1 أخرى</translation>
    </message>
    <message>
        <source>There are no curves.</source>
        <translation>لا توجد منحنيات.</translation>
    </message>
    <message>
        <source>Job Manager Information</source>
        <translation>معلومات المهمة</translation>
    </message>
    <message>
        <source>Customer Information</source>
        <translation>معلومات العميل</translation>
    </message>
    <message>
        <source>Technician Information</source>
        <translation>معلومات الفني</translation>
    </message>
    <message>
        <source>Software Revisions</source>
        <translation>إصدارات البرمجيات</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>الإصدار</translation>
    </message>
    <message>
        <source>Configuration Values</source>
        <translation>قيم التهيئة</translation>
    </message>
    <message>
        <source>Not Completed</source>
        <translation>غير مكتمل</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>النقاط</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>الحد الأدنى</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>الحد الأقصى</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>‏%1 إلى %2</translation>
    </message>
    <message>
        <source>The curves are drawn in the HTML and PDF reports.</source>
        <translation>المنحنيات مرسومة في تقارير HTML وPDF.</translation>
    </message>
</context>
<context>
    <name>TextEntry</name>
    <message>
        <source>&quot;%1&quot; cannot be used here</source>
        <translation>لا يُقبل &quot;%1&quot; هنا</translation>
    </message>
</context>
<context>
    <name>TouchTab</name>
    <message>
        <source>Needs attention</source>
        <translation>يحتاج إلى انتباه</translation>
    </message>
</context>
<context>
    <name>TouchTabs</name>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
</context>
<context>
    <name>TurnLine</name>
    <message>
        <source>%1 before</source>
        <translation>‏%1: أقل</translation>
    </message>
    <message>
        <source>%1 after</source>
        <translation>‏%1: أكثر</translation>
    </message>
</context>
<context>
    <name>UiData</name>
    <message>
        <source>False</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>True</source>
        <translation>نعم</translation>
    </message>
</context>
<context>
    <name>ViewerBar</name>
    <message>
        <source>Previous page</source>
        <translation>الصفحة السابقة</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>الصفحة %1 من %2</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>الصفحة التالية</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>أصغر</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>‏%1 %</translation>
    </message>
    <message>
        <source>Zoom %1</source>
        <translation>التكبير %1</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>أكبر</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>Fit the width</source>
        <translation>ملاءمة العرض</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>الصفحة</translation>
    </message>
    <message>
        <source>Fit the page</source>
        <translation>ملاءمة الصفحة</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>formats</name>
    <message>
        <source>Four numbers separated by points, such as 192.0.2.1</source>
        <translation>أربعة أرقام تفصلها نقاط، مثل 192.0.2.1</translation>
    </message>
    <message>
        <source>Each part is a number from 0 to 255</source>
        <translation>كل جزء رقم من 0 إلى 255</translation>
    </message>
    <message>
        <source>No part can begin with 0</source>
        <translation>لا يبدأ أي جزء بالرقم 0</translation>
    </message>
    <message>
        <source>Up to eight groups separated by colons, such as 2001:db8::1</source>
        <translation>حتى ثماني مجموعات تفصلها نقطتان رأسيتان، مثل 2001:db8::1</translation>
    </message>
    <message>
        <source>&quot;::&quot; can appear only once</source>
        <translation>يمكن أن يرد &quot;::&quot; مرة واحدة فقط</translation>
    </message>
    <message>
        <source>Each group is one to four hexadecimal digits</source>
        <translation>كل مجموعة من رقم إلى أربعة أرقام ست عشرية</translation>
    </message>
    <message>
        <source>Six pairs of hexadecimal digits, such as 00:1A:2B:3C:4D:5E</source>
        <translation>ستة أزواج من الأرقام الست عشرية، مثل 00:1A:2B:3C:4D:5E</translation>
    </message>
    <message>
        <source>A URL cannot contain blanks</source>
        <translation>لا يحتوي عنوان URL على مسافات</translation>
    </message>
    <message>
        <source>Scheme and host, such as https://host/path</source>
        <translation>المخطط والمضيف، مثل https://host/path</translation>
    </message>
    <message>
        <source>At most %1 characters; this text has %2</source>
        <translation>‏%1 محرفًا على الأكثر؛ في هذا النص %2</translation>
    </message>
    <message>
        <source>Digits, + at the beginning, blanks and ( ) / - * #</source>
        <translation>أرقام، و+ في البداية، ومسافات و( ) / - * #</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>‏%1 على الأقل</translation>
    </message>
    <message>
        <source>At most %1</source>
        <translation>‏%1 على الأكثر</translation>
    </message>
    <message>
        <source>At least %1 characters; this text has %2</source>
        <translation>‏%1 محرفًا على الأقل؛ في هذا النص %2</translation>
    </message>
</context>
<context>
    <name>uiutils::PendingChanges</name>
    <message>
        <source>The service %1 cannot be reached. The change waits until it returns.</source>
        <translation>تعذّر الوصول إلى الخدمة %1. ينتظر التغيير عودتها.</translation>
    </message>
    <message>
        <source>The entry was rejected.</source>
        <translation>رُفض الإدخال.</translation>
    </message>
    <message>
        <source>On</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>إيقاف</translation>
    </message>
</context>
<context>
    <name>uiutils::ReportDraft</name>
    <message>
        <source>Another page or program keeps results of this kind</source>
        <translation>تحتفظ صفحة أخرى أو برنامج آخر بنتائج من هذا النوع</translation>
    </message>
    <message>
        <source>There is no folder to keep the results in until they are saved</source>
        <translation>لا يوجد مجلد للاحتفاظ بالنتائج حتى حفظها</translation>
    </message>
</context>
<context>
    <name>uiutils::ReportPaper</name>
    <message>
        <source>the printer takes no further page</source>
        <translation>لا تقبل الطابعة صفحة أخرى</translation>
    </message>
    <message>
        <source>the program has no fonts, because it is not a QGuiApplication</source>
        <translation>لا توجد خطوط لأن البرنامج ليس QGuiApplication</translation>
    </message>
    <message>
        <source>the report has no page %1, only %2</source>
        <translation>ليس في التقرير صفحة %1، بل %2 فقط</translation>
    </message>
    <message>
        <source>the printer cannot be used</source>
        <translation>يتعذر استخدام الطابعة</translation>
    </message>
    <message>
        <source>another report is being printed</source>
        <translation>تجري طباعة تقرير آخر</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::Follower</name>
    <message>
        <source>Following the user&apos;s name, &quot;%1&quot;.</source>
        <translation>متابعة اسم المستخدم &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>There is no setting %1 to follow. Start kivd with the service that has it.</source>
        <translation>لا يوجد إعداد %1 لمتابعته. شغّل kivd بالخدمة التي تحتويه.</translation>
    </message>
    <message>
        <source>Another application has changed it to &quot;%1&quot;.</source>
        <translation>غيّره تطبيق آخر إلى &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The services have ended; it stays &quot;%1&quot;.</source>
        <translation>انتهت الخدمات؛ وبقي &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The services have returned, and nothing is lost.</source>
        <translation>عادت الخدمات ولم يُفقد شيء.</translation>
    </message>
    <message>
        <source>The services have returned with &quot;%1&quot; instead of &quot;%2&quot;.</source>
        <translation>عادت الخدمات بالقيمة &quot;%1&quot; بدل &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The window gives no picture.</source>
        <translation>لا تعطي النافذة صورة.</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>لم تُكتب %1: %2</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::LoopbackMeasurement</name>
    <message>
        <source>Ready to measure</source>
        <translation>جاهز للقياس</translation>
    </message>
    <message>
        <source>Connecting to the server</source>
        <translation>جارٍ الاتصال بالخادم</translation>
    </message>
    <message>
        <source>Measuring round-trip time</source>
        <translation>جارٍ قياس زمن الذهاب والإياب</translation>
    </message>
    <message>
        <source>Measuring throughput</source>
        <translation>جارٍ قياس معدل النقل</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>انتهى</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>أُلغي</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>فشل</translation>
    </message>
    <message>
        <source>Measured with a TCP client and a TCP server of this program over the loopback interface of this unit. Round-trip time: %1 samples, each the time from sending a message of %2 bytes until all of its echo had arrived. Throughput: %6 samples, each the time for sending %3 MiB until the server had acknowledged the last byte; 1 Mbit/s is 1,000,000 bits a second. Between samples there is a pause of %4 ms, and one exchange of each kind before the first sample is not counted. Jitter is the mean difference between neighbouring samples. A value passes when it meets its limit with a margin of at least %5 %, is marginal when it meets it with less, and fails when it does not meet it; the overall status is that of the worse median.</source>
        <translation>قيس بعميل TCP وخادم TCP من هذا البرنامج عبر واجهة الحلقة في هذا الجهاز. زمن الذهاب والإياب: %1 عينة، كل منها الزمن من إرسال رسالة من %2 بايت حتى وصول صداها كاملًا. معدل النقل: %6 عينة، كل منها زمن إرسال %3 MiB حتى يؤكد الخادم آخر بايت؛ 1 Mbit/s هو 1,000,000 بت في الثانية. بين العينات توقف مدته %4 ms، ولا يُحسب تبادل واحد من كل نوع قبل العينة الأولى. الارتعاش هو متوسط الفرق بين العينات المتجاورة. تنجح القيمة إذا حققت حدها بهامش لا يقل عن %5 %، وتكون حدّية إذا حققته بهامش أقل، وترسب إذا لم تحققه؛ والحالة العامة هي حالة الوسيط الأسوأ.</translation>
    </message>
    <message>
        <source>A run takes %1 to %2 samples of each and messages of %3 B or more; other values are changed to the nearest permitted one.</source>
        <translation>يأخذ القياس من %1 إلى %2 عينة من كل نوع ورسائل من %3 بايت فأكثر؛ وتُغيَّر القيم الأخرى إلى أقرب قيمة مسموحة.</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::LoopbackProbe</name>
    <message>
        <source>No server could be opened on the loopback address (%1). Check that the loopback interface is up, then start again.</source>
        <translation>تعذر فتح خادم على عنوان الحلقة (%1). تحقق من عمل واجهة الحلقة، ثم ابدأ مجددًا.</translation>
    </message>
    <message>
        <source>The server at %1 sent an answer that does not match the request while %2. Another program may be listening there; start again.</source>
        <translation>أرسل الخادم %1 إجابة لا تطابق الطلب (%2). قد يكون برنامج آخر يستمع هناك؛ ابدأ مجددًا.</translation>
    </message>
    <message>
        <source>The connection to the server at %1 broke while %2 (%3). Check that the loopback interface is up and that no firewall blocks it, then start again.</source>
        <translation>انقطع الاتصال بالخادم %1 (%2؛ %3). تحقق من عمل واجهة الحلقة ومن عدم حجبها بجدار ناري، ثم ابدأ مجددًا.</translation>
    </message>
    <message>
        <source>The server at %1 was silent for %2 s while %3. Check that the loopback interface is up and that no firewall blocks it, then start again.</source>
        <translation>لم يُجب الخادم %1 مدة %2 ث (%3). تحقق من عمل واجهة الحلقة ومن عدم حجبها بجدار ناري، ثم ابدأ مجددًا.</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>الاتصال</translation>
    </message>
    <message>
        <source>measuring round-trip time, sample %1 of %2</source>
        <translation>قياس زمن الذهاب والإياب، العينة %1 من %2</translation>
    </message>
    <message>
        <source>measuring throughput, sample %1 of %2</source>
        <translation>قياس معدل النقل، العينة %1 من %2</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::LoopbackReport</name>
    <message>
        <source>Title on the report</source>
        <translation>عنوان التقرير</translation>
    </message>
    <message>
        <source>TCP loopback test</source>
        <translation>اختبار حلقة TCP</translation>
    </message>
    <message>
        <source>Compressed</source>
        <translation>مضغوط</translation>
    </message>
    <message>
        <source>Finish a measurement on the Measure page first.</source>
        <translation>أكمل قياسًا أولًا.</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::SampleModel</name>
    <message>
        <source>at most %1</source>
        <translation>‏%1 على الأكثر</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>‏%1 على الأقل</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>ناجح</translation>
    </message>
    <message>
        <source>Marginal</source>
        <translation>حدّي</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>راسب</translation>
    </message>
    <message>
        <source>Round-trip time</source>
        <translation>زمن الذهاب والإياب</translation>
    </message>
    <message>
        <source>Throughput</source>
        <translation>معدل النقل</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::ScreenCamera</name>
    <message>
        <source>Screenshot Saved</source>
        <translation>تم حفظ لقطة الشاشة</translation>
    </message>
    <message>
        <source>No picture of the window could be taken.</source>
        <translation>تعذر التقاط صورة للنافذة.</translation>
    </message>
    <message>
        <source>The window was not drawn for %1 s.</source>
        <translation>لم تُرسم النافذة مدة %1 ث.</translation>
    </message>
    <message>
        <source>The picture of the window is empty.</source>
        <translation>صورة النافذة فارغة.</translation>
    </message>
    <message>
        <source>There is not enough space for the picture.</source>
        <translation>لا توجد مساحة كافية للصورة.</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::Tour</name>
    <message>
        <source>The picture of the window for %1 is empty. Run the demo without a display, with DISPLAY and WAYLAND_DISPLAY unset.</source>
        <translation>صورة النافذة من أجل %1 فارغة. شغّل العرض دون شاشة، من غير DISPLAY وWAYLAND_DISPLAY.</translation>
    </message>
    <message>
        <source>Check the free space and that you may write there, or name another folder with --root.</source>
        <translation>تحقق من المساحة الحرة ومن صلاحية الكتابة هناك، أو حدّد مجلدًا آخر بالخيار --root.</translation>
    </message>
    <message>
        <source>The tour waited for %1 s in vain: %2. Keep the window in sight, and leave it alone.</source>
        <translation>انتظرت الجولة %1 ث دون جدوى: %2. أبقِ النافذة ظاهرة ولا تلمسها.</translation>
    </message>
    <message>
        <source>the job is open</source>
        <translation>المهمة مفتوحة</translation>
    </message>
    <message>
        <source>half of the run</source>
        <translation>منتصف القياس</translation>
    </message>
    <message>
        <source>the end of the run</source>
        <translation>نهاية القياس</translation>
    </message>
    <message>
        <source>the format of all files</source>
        <translation>تنسيق جميع الملفات</translation>
    </message>
    <message>
        <source>the report is saved</source>
        <translation>التقرير محفوظ</translation>
    </message>
    <message>
        <source>a question before files are overwritten</source>
        <translation>سؤال قبل استبدال الملفات</translation>
    </message>
    <message>
        <source>the answer</source>
        <translation>الإجابة</translation>
    </message>
    <message>
        <source>the screenshot</source>
        <translation>لقطة الشاشة</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can be pressed</source>
        <translation>يمكن الضغط على &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is typed</source>
        <translation>كُتب &quot;%1&quot;</translation>
    </message>
    <message>
        <source>a picture of the window can be taken</source>
        <translation>يمكن التقاط صورة للنافذة</translation>
    </message>
    <message>
        <source>the picture %1</source>
        <translation>الصورة %1</translation>
    </message>
    <message>
        <source>the pages of the preview</source>
        <translation>صفحات المعاينة</translation>
    </message>
    <message>
        <source>the drawer of the desk</source>
        <translation>درج المنضدة</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::UsbStick</name>
    <message>
        <source>The files in %1 cannot be moved to %2: %3.</source>
        <translation>يتعذر نقل الملفات من ⁦%1⁩ إلى ⁦%2⁩: %3.</translation>
    </message>
    <message>
        <source>No service of this instrument knows of USB drives.</source>
        <translation>لا توجد في هذا الجهاز خدمة تتعامل مع ذاكرات USB.</translation>
    </message>
    <message>
        <source>USB Drive</source>
        <translation>ذاكرة USB</translation>
    </message>
</context>
</TS>
