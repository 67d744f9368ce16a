"""The documents of the bench. Every text was written for it; what each document is a test of stands in `shows`."""
from markup import (Cell, Columns, Contents, Document, H, P, PageBreak, Table, b, bullets, i, link, new_line, note, numbered)

MILL = ("The mill stood at the bend of the river for as long as anyone in the village could remember, and it had ground the corn of three "
        "parishes before the railway came. When the last miller retired, the wheel was stopped and the doors were locked. For twenty years "
        "nobody went in except the swallows and, now and then, a boy who knew where the loose board was.")
ROOF = ("A survey in the spring found the roof sound and the floors dry. The gears were heavy with dust but whole; somebody had greased "
        "them before leaving, as one covers the furniture of a house one means to come back to. The cost of bringing the mill to life again "
        "was put at less than half of what the parish had feared.")
PLAN = ("The work was planned in three steps. First the channel had to be cleared, because without water everything else would remain an "
        "exhibit. Then the wheel would be taken down, repaired in the yard and hung again before the frost. Only after that, and only if "
        "money remained, would the upper floor be opened to visitors.")
VOTE = ("At the meeting in June the council voted for the plan with two voices against. Those who had spoken against it were the first to "
        "bring their spades on Saturday morning, which says more about the village than the minutes do.")

ENGLISH_REPORT = Document(
    "report-en", "headings, running heads, footnotes, links, lists and a table over two pages", "en-GB",
    [H(1, "The mill at the bend", "mill"), P(MILL, align="both"),
     P("The whole story is told on ", link("the pages of the society", "https://mill.example/story"),
       " and, in short, in ", link("what was decided", "#decided"), " below.", note("The pages are kept by volunteers and change often."),
       align="both"),
     H(2, "What the survey found", "survey"), P(ROOF, align="both"),
     P("Three things were noted with ", b("special care"), " by the surveyor:"),
     bullets("the bearing of the main shaft, which has run dry on its northern side", "the sluice gate",
             ["its frame is oak and sound", "its chain is missing"], "the stairs to the upper floor"),
     H(2, "What was planned", "planned"), P(PLAN, align="both"),
     numbered("Clear the channel.", "Take down the wheel.", ["number the paddles", "repair the rim"], "Hang the wheel again."),
     P("Nobody expected the work to be finished ", i("before the frost"), ", and nobody was wrong.",
       note("The first frost came on the ninth of October."), align="both"),
     H(2, "What it cost", "cost"), P("The figures are those of the treasurer."),
     Table([["Item", "Planned", "Spent"]] +
           [[name, Cell(planned, align="right"), Cell(spent, align="right")] for name, planned, spent in (
               ("Channel", "1,200", "1,340"), ("Spades and barrows", "150", "148"), ("Timber", "2,400", "2,910"), ("Iron", "800", "760"),
               ("Grease", "30", "45"), ("Stairs", "900", "0"), ("Paint", "120", "96"), ("Lamps", "200", "210"), ("Insurance", "340", "340"),
               ("Opening day", "250", "412"))], [80, 35, 35]),
     H(2, "What was decided", "decided"), P(VOTE, align="both"), P(MILL, align="both"), P(ROOF, align="both"),
     P(PLAN, align="both"), P(VOTE, align="both")],
    header="The mill at the bend", footer="Page %p of %n")

CONTENTS = Document(
    "contents-en", "a table of contents, a heading on each page, page numbers", "en-GB",
    [P(b("Handbook of the society")), Contents([2, 2, 3, 3]), PageBreak(),
     H(1, "Members", "members"), P(MILL), H(2, "How to join", "join"), P(ROOF), P(PLAN), PageBreak(),
     H(1, "Meetings", "meetings"), P(VOTE), H(2, "Minutes", "minutes"), P(MILL), P(PLAN)],
    footer="%p", font="Liberation Sans", size=10.5)

GERMAN_LETTER = Document(
    "brief-de", "an address with its line breaks, a subject, justified text with hyphens in words", "de-DE",
    [P("Stadtwerke Lindenau", new_line("Abteilung Hausanschl\u00fcsse"), new_line("Am Gaswerk 4"), new_line("04177 Lindenau")),
     P("12. M\u00e4rz 2024", align="right"), P(b("Ihr Schreiben vom 28. Februar \u2013 Verlegung des Z\u00e4hlers")),
     P("Sehr geehrte Damen und Herren,"),
     P("vielen Dank f\u00fcr Ihr Schreiben, in dem Sie vorschlagen, den Z\u00e4hler aus dem Treppenhaus in den Keller zu verlegen. "
       "Grunds\u00e4tzlich haben wir nichts dagegen, bitten Sie aber, vor Beginn der Arbeiten zwei Fragen zu kl\u00e4ren, die unsere "
       "Hausgemeinschaft betreffen und \u00fcber die wir bei der letzten Versammlung lange gesprochen haben.", align="both"),
     numbered("Wer tr\u00e4gt die Kosten f\u00fcr den Durchbruch in der Kellerdecke?",
              "Wie lange wird das Haus w\u00e4hrend der Arbeiten ohne Strom sein?"),
     P("Die Nord-S\u00fcd-Leitung wurde erst vor f\u00fcnf Jahren erneuert. Wir gehen deshalb davon aus, dass sie weiterverwendet werden "
       "kann, und w\u00e4ren f\u00fcr eine kurze Best\u00e4tigung dankbar. Sollte das nicht m\u00f6glich sein, bitten wir um einen "
       "Kostenvoranschlag, den wir den Eigent\u00fcmern vorlegen k\u00f6nnen.", align="both"),
     P("Mit freundlichen Gr\u00fc\u00dfen"), P("Hausgemeinschaft Weidenweg 7")], font="Carlito")

FRENCH_NEWSLETTER = Document(
    "journal-fr", "two columns between a title and a closing paragraph", "fr-FR",
    [H(1, "Le journal du quartier", "journal"),
     P(i("Num\u00e9ro 14 \u2013 paru au printemps, distribu\u00e9 par les enfants de l\u2019\u00e9cole")),
     Columns(2, [H(2, "Le jardin de la rue des Tanneurs", "jardin"),
                 P("Depuis le mois d\u2019avril, le terrain vague de la rue des Tanneurs est devenu un jardin. Une vingtaine d\u2019habitants "
                   "s\u2019y retrouvent le samedi matin pour b\u00eacher, semer et discuter. Les premi\u00e8res salades sont attendues pour la "
                   "f\u00eate du quartier.", align="both"),
                 P("La mairie a pr\u00eat\u00e9 les outils et l\u2019eau vient de la citerne que le plombier du coin a remise en \u00e9tat. Ceux qui "
                   "n\u2019ont pas de parcelle peuvent s\u2019occuper des fleurs qui longent le mur.", align="both"),
                 H(2, "La biblioth\u00e8que cherche des lecteurs", "biblio"),
                 P("Chaque mercredi, des b\u00e9n\u00e9voles lisent des histoires aux plus petits. Il manque encore deux voix pour le mois de juin. "
                   "Il n\u2019est pas n\u00e9cessaire d\u2019avoir de l\u2019exp\u00e9rience : il suffit d\u2019aimer les livres et de ne pas craindre "
                   "les questions.", align="both"),
                 P("Les personnes int\u00e9ress\u00e9es peuvent laisser leur nom \u00e0 l\u2019accueil. Une rencontre est pr\u00e9vue avant chaque "
                   "s\u00e9ance pour choisir les textes ensemble.", align="both")]),
     P("La r\u00e9daction remercie tous ceux qui ont \u00e9crit, dessin\u00e9, pli\u00e9 et port\u00e9 ce num\u00e9ro de porte en porte. Le prochain "
       "para\u00eetra \u00e0 l\u2019automne.")], font="Liberation Sans", size=10)

SPANISH_INVOICE = Document(
    "factura-es", "a table with joined cells, numbers set to the right, and one without rules", "es-ES",
    [H(1, "Factura 2024-017", "factura"),
     Table([["Cliente", "Panader\u00eda La Espiga"], ["Direcci\u00f3n", "Calle del Horno 3, Salamanca"], ["Fecha", "5 de mayo de 2024"]],
           [35, 90], head=0, ruled="none"),
     Table([[Cell("Trabajo", rows=2), Cell("Importe", columns=2, align="center")], [None, Cell("Horas", align="right"), Cell("Euros", align="right")],
            ["Reparaci\u00f3n del horno de le\u00f1a", Cell("12", align="right"), Cell("540,00", align="right")],
            ["Cambio de la puerta y de sus bisagras", Cell("3", align="right"), Cell("135,00", align="right")],
            ["Limpieza de la chimenea", Cell("4", align="right"), Cell("160,00", align="right")],
            [Cell("Total", columns=2, align="right"), Cell("835,00", align="right")]], [85, 30, 35], head=2),
     P("El pago se efect\u00faa en un plazo de treinta d\u00edas. Las piezas cambiadas quedan a disposici\u00f3n del cliente durante una semana.")],
    font="Carlito")

RUSSIAN_ARTICLE = Document(
    "statja-ru", "Cyrillic text with footnotes on two pages and a table with lines only", "ru-RU",
    [H(1, "\u0421\u0442\u0430\u0440\u0430\u044f \u043c\u0435\u043b\u044c\u043d\u0438\u0446\u0430", "melnica")] +
    [P(text, note(comment), tail, align="both") for text, comment, tail in (
        ("\u041c\u0435\u043b\u044c\u043d\u0438\u0446\u0430 \u0441\u0442\u043e\u044f\u043b\u0430 \u0443 \u0438\u0437\u043b\u0443\u0447\u0438\u043d\u044b \u0440\u0435\u043a\u0438 "
         "\u0441\u0442\u043e\u043b\u044c\u043a\u043e \u043b\u0435\u0442, \u0441\u043a\u043e\u043b\u044c\u043a\u043e \u043f\u043e\u043c\u043d\u0438\u043b\u0438 \u0436\u0438\u0442\u0435\u043b\u0438 "
         "\u0434\u0435\u0440\u0435\u0432\u043d\u0438",
         "\u0412 \u0446\u0435\u0440\u043a\u043e\u0432\u043d\u043e\u0439 \u043a\u043d\u0438\u0433\u0435 \u043e\u043d\u0430 \u0443\u043f\u043e\u043c\u044f\u043d\u0443\u0442\u0430 \u0432\u043f\u0435\u0440\u0432\u044b\u0435 "
         "\u0432 \u0442\u044b\u0441\u044f\u0447\u0430 \u0441\u0435\u043c\u044c\u0441\u043e\u0442 \u0441\u043e\u0440\u043e\u043a\u043e\u0432\u043e\u043c \u0433\u043e\u0434\u0443.",
         ". \u041a\u043e\u0433\u0434\u0430 \u043f\u043e\u0441\u043b\u0435\u0434\u043d\u0438\u0439 \u043c\u0435\u043b\u044c\u043d\u0438\u043a \u0443\u0448\u0451\u043b \u043d\u0430 \u043f\u043e\u043a\u043e\u0439, "
         "\u043a\u043e\u043b\u0435\u0441\u043e \u043e\u0441\u0442\u0430\u043d\u043e\u0432\u0438\u043b\u0438, \u0430 \u0434\u0432\u0435\u0440\u0438 \u0437\u0430\u043f\u0435\u0440\u043b\u0438. "
         "\u0414\u0432\u0430\u0434\u0446\u0430\u0442\u044c \u043b\u0435\u0442 \u0442\u0443\u0434\u0430 \u043d\u0438\u043a\u0442\u043e \u043d\u0435 \u0437\u0430\u0445\u043e\u0434\u0438\u043b, \u043a\u0440\u043e\u043c\u0435 "
         "\u043b\u0430\u0441\u0442\u043e\u0447\u0435\u043a."),
        ("\u041e\u0441\u043c\u043e\u0442\u0440 \u0432\u0435\u0441\u043d\u043e\u0439 \u043f\u043e\u043a\u0430\u0437\u0430\u043b, \u0447\u0442\u043e \u043a\u0440\u044b\u0448\u0430 \u0446\u0435\u043b\u0430, \u0430 "
         "\u043f\u043e\u043b\u044b \u0441\u0443\u0445\u0438\u0435",
         "\u041e\u0442\u0447\u0451\u0442 \u0445\u0440\u0430\u043d\u0438\u0442\u0441\u044f \u0432 \u0430\u0440\u0445\u0438\u0432\u0435 \u043e\u0431\u0449\u0435\u0441\u0442\u0432\u0430.",
         ". \u0428\u0435\u0441\u0442\u0435\u0440\u043d\u0438 \u043f\u043e\u043a\u0440\u044b\u043b\u0438\u0441\u044c \u043f\u044b\u043b\u044c\u044e, \u043d\u043e \u043d\u0435 \u0441\u043b\u043e\u043c\u0430\u043d\u044b: "
         "\u043a\u0442\u043e-\u0442\u043e \u0441\u043c\u0430\u0437\u0430\u043b \u0438\u0445 \u043f\u0435\u0440\u0435\u0434 \u0443\u0445\u043e\u0434\u043e\u043c."))] +
    [Table([["\u0413\u043e\u0434", "\u0417\u0435\u0440\u043d\u043e, \u0442"], ["1911", Cell("84", align="right")], ["1912", Cell("91", align="right")],
            ["1913", Cell("77", align="right")]], [40, 40], ruled="lines")])

ARABIC_NOTICE = Document(
    "ilan-ar", "right-to-left text with a list and a table read from the right", "ar-SA",
    [H(1, "\u0645\u0643\u062a\u0628\u0629 \u0627\u0644\u062d\u064a", "maktaba"),
     P("\u062a\u0641\u062a\u062d \u0627\u0644\u0645\u0643\u062a\u0628\u0629 \u0623\u0628\u0648\u0627\u0628\u0647\u0627 \u0643\u0644 \u064a\u0648\u0645 \u0645\u0646 "
       "\u0627\u0644\u0633\u0627\u0639\u0629 \u0627\u0644\u062a\u0627\u0633\u0639\u0629 \u0635\u0628\u0627\u062d\u0627 \u0625\u0644\u0649 \u0627\u0644\u0633\u0627\u0639\u0629 "
       "\u0627\u0644\u062e\u0627\u0645\u0633\u0629 \u0645\u0633\u0627\u0621\u060c \u0648\u062a\u0631\u062d\u0628 \u0628\u0643\u0644 \u0633\u0643\u0627\u0646 "
       "\u0627\u0644\u062d\u064a \u0635\u063a\u0627\u0631\u0627 \u0648\u0643\u0628\u0627\u0631\u0627. \u064a\u0645\u0643\u0646 "
       "\u0627\u0633\u062a\u0639\u0627\u0631\u0629 \u062b\u0644\u0627\u062b\u0629 \u0643\u062a\u0628 \u0644\u0645\u062f\u0629 \u0623\u0633\u0628\u0648\u0639\u064a\u0646."),
     bullets("\u0642\u0635\u0635 \u0644\u0644\u0623\u0637\u0641\u0627\u0644", "\u0643\u062a\u0628 \u0627\u0644\u062a\u0627\u0631\u064a\u062e", "\u0645\u062c\u0644\u0627\u062a"),
     Table([["\u0627\u0644\u064a\u0648\u0645", "\u0627\u0644\u0646\u0634\u0627\u0637"],
            ["\u0627\u0644\u0623\u062d\u062f", "\u0642\u0631\u0627\u0621\u0629 \u0627\u0644\u0642\u0635\u0635"],
            ["\u0627\u0644\u0623\u0631\u0628\u0639\u0627\u0621", "\u0627\u0644\u062e\u0637 \u0627\u0644\u0639\u0631\u0628\u064a"]], [40, 60])],
    font="DejaVu Sans", rtl=True)

CHINESE_GUIDE = Document(
    "zhinan-zh", "Chinese text without blanks, numbered headings and a list", "zh-CN",
    [H(1, "\u793e\u533a\u56fe\u4e66\u9986\u6307\u5357", "zhinan"),
     P("\u793e\u533a\u56fe\u4e66\u9986\u6bcf\u5929\u4e0a\u5348\u4e5d\u70b9\u5f00\u95e8\uff0c\u4e0b\u5348\u516d\u70b9\u5173\u95e8\u3002\u8bfb\u8005\u53ef\u4ee5\u5728\u9605\u89c8\u5ba4\u91cc"
       "\u770b\u4e66\uff0c\u4e5f\u53ef\u4ee5\u628a\u4e66\u501f\u56de\u5bb6\u3002\u6bcf\u6b21\u6700\u591a\u501f\u4e09\u672c\uff0c\u671f\u9650\u4e3a\u4e24\u4e2a\u661f\u671f\u3002\u5982\u679c\u6ca1\u6709"
       "\u522b\u7684\u8bfb\u8005\u9884\u7ea6\uff0c\u53ef\u4ee5\u518d\u7eed\u501f\u4e24\u4e2a\u661f\u671f\u3002"),
     H(2, "\u501f\u4e66\u7684\u6b65\u9aa4", "buzhou"),
     numbered("\u5728\u4e66\u67b6\u4e0a\u627e\u5230\u60f3\u501f\u7684\u4e66\u3002", "\u628a\u4e66\u548c\u8bfb\u8005\u8bc1\u4ea4\u7ed9\u7ba1\u7406\u5458\u3002", "\u8bb0\u4f4f\u8fd8\u4e66\u7684\u65e5\u671f\u3002"),
     H(2, "\u6ce8\u610f\u4e8b\u9879", "zhuyi"),
     P("\u8bf7\u4e0d\u8981\u5728\u4e66\u4e0a\u5199\u5b57\u3002\u4e22\u5931\u6216\u635f\u574f\u4e66\u7c4d\u7684\uff0c\u5e94\u5f53\u6309\u7167\u539f\u4ef7\u8d54\u507f\u3002\u9605\u89c8\u5ba4\u5185\u8bf7\u4fdd"
       "\u6301\u5b89\u9759\uff0c\u624b\u673a\u8bf7\u8c03\u6210\u9759\u97f3\u3002")], font="Noto Sans CJK SC")

JAPANESE_NOTE = Document(
    "oshirase-ja", "Japanese text with Latin words and numbers in it", "ja-JP",
    [H(1, "\u5927\u6383\u9664\u306e\u304a\u77e5\u3089\u305b", "souji"),
     P("6\u670815\u65e5\uff08\u65e5\uff09\u306e\u5348\u524d9\u6642\u304b\u3089\u3001\u5ddd\u6cbf\u3044\u306e\u904a\u6b69\u9053\u3067\u5927\u6383\u9664\u3092\u884c\u3044\u307e\u3059\u3002\u8ecd\u624b\u3068"
       "\u888b\u306f\u81ea\u6cbb\u4f1a\u3067\u7528\u610f\u3057\u307e\u3059\u306e\u3067\u3001\u52d5\u304d\u3084\u3059\u3044\u670d\u88c5\u3067\u304a\u8d8a\u3057\u304f\u3060\u3055\u3044\u3002\u96e8\u306e\u5834\u5408\u306f"
       "\u6b21\u306e\u9031\u306b\u5ef6\u671f\u3057\u307e\u3059\u3002\u8a73\u3057\u304f\u306fWeb\u30b5\u30a4\u30c8\u3092\u3054\u89a7\u304f\u3060\u3055\u3044\u3002"),
     bullets("\u96c6\u5408\u5834\u6240\u306f\u516c\u6c11\u9928\u306e\u524d\u3067\u3059", "\u5c0f\u5b66\u751f\u306f\u4fdd\u8b77\u8005\u3068\u4e00\u7dd2\u306b\u53c2\u52a0\u3057\u307e\u3059")],
    font="Noto Sans CJK JP")

LANDSCAPE_PLAN = Document(
    "plan-nl", "a landscape page with a wide table of many columns", "nl-NL",
    [H(1, "Weekrooster van het buurthuis", "rooster"),
     Table([["Tijd", "Maandag", "Dinsdag", "Woensdag", "Donderdag", "Vrijdag"],
            ["9 uur", "Koffie", "Taalles", "Koffie", "Taalles", "Markt"],
            ["11 uur", "Schaken", "Gymnastiek voor ouderen", "Naaien", "Gymnastiek voor ouderen", "Markt"],
            ["14 uur", "Huiswerk", "", "Kinderclub", "", "Huiswerk"],
            ["19 uur", "Koor", "Vergadering", "Film", "Koor", Cell("")]], [25, 40, 42, 40, 42, 40]),
     P("Wijzigingen hangen op het bord naast de deur. Wie een lokaal wil huren, meldt zich bij het bureau.")],
    landscape=True, font="Liberation Sans", size=10)

PORTUGUESE_PROSE = Document(
    "conto-pt", "first lines and hard breaks: prose, a poem and dialogue", "pt-PT",
    [H(1, "O rel\u00f3gio da pra\u00e7a", "relogio"),
     P("O rel\u00f3gio da pra\u00e7a parou numa ter\u00e7a-feira, \u00e0s dez para as quatro, e ningu\u00e9m deu por isso at\u00e9 ao dia seguinte. As "
       "pessoas passavam, olhavam para cima por h\u00e1bito e continuavam o seu caminho com a certeza de que ainda tinham tempo."),
     P("\u2014 Est\u00e1 parado \u2014 disse o padeiro."), P("\u2014 Sempre esteve \u2014 respondeu a florista, que n\u00e3o gostava de horas."),
     P("Quem vem de longe traz o p\u00f3,", new_line("quem fica guarda a fonte,"), new_line("e o sino que bate s\u00f3"),
       new_line("responde ao outro do monte.")),
     P("No domingo subiu \u00e0 torre um rapaz com uma lata de \u00f3leo e uma lanterna. Desceu uma hora depois, com as m\u00e3os pretas e um sorriso, "
       "e o ponteiro dos minutos deu um salto, como quem acorda.")])

THAI_NOTE = Document(
    "prakat-th", "Thai text, whose words have no blanks between them", "th-TH",
    [H(1, "\u0e2b\u0e49\u0e2d\u0e07\u0e2a\u0e21\u0e38\u0e14\u0e0a\u0e38\u0e21\u0e0a\u0e19", "hongsamut"),
     P("\u0e2b\u0e49\u0e2d\u0e07\u0e2a\u0e21\u0e38\u0e14\u0e40\u0e1b\u0e34\u0e14\u0e17\u0e38\u0e01\u0e27\u0e31\u0e19 "
       "\u0e15\u0e31\u0e49\u0e07\u0e41\u0e15\u0e48\u0e40\u0e01\u0e49\u0e32\u0e42\u0e21\u0e07\u0e40\u0e0a\u0e49\u0e32\u0e16\u0e36\u0e07\u0e2b\u0e49\u0e32"
       "\u0e42\u0e21\u0e07\u0e40\u0e22\u0e47\u0e19 \u0e22\u0e37\u0e21\u0e2b\u0e19\u0e31\u0e07\u0e2a\u0e37\u0e2d\u0e44\u0e14\u0e49\u0e2a\u0e32\u0e21\u0e40\u0e25\u0e48\u0e21 "
       "\u0e40\u0e1b\u0e47\u0e19\u0e40\u0e27\u0e25\u0e32\u0e2a\u0e2d\u0e07\u0e2a\u0e31\u0e1b\u0e14\u0e32\u0e2b\u0e4c"),
     bullets("\u0e19\u0e34\u0e17\u0e32\u0e19", "\u0e1b\u0e23\u0e30\u0e27\u0e31\u0e15\u0e34\u0e28\u0e32\u0e2a\u0e15\u0e23\u0e4c")], font="Loma", size=14)

HINDI_NOTE = Document(
    "suchana-hi", "Devanagari, whose letters are not drawn in the order of writing", "hi-IN",
    [H(1, "\u092e\u094b\u0939\u0932\u094d\u0932\u0947 \u0915\u093e \u092a\u0941\u0938\u094d\u0924\u0915\u093e\u0932\u092f", "pustak"),
     P("\u092a\u0941\u0938\u094d\u0924\u0915\u093e\u0932\u092f \u0939\u0930 \u0926\u093f\u0928 \u0938\u0941\u092c\u0939 \u0928\u094c \u092c\u091c\u0947 "
       "\u0916\u0941\u0932\u0924\u093e \u0939\u0948 \u0914\u0930 \u0936\u093e\u092e \u092a\u093e\u0901\u091a \u092c\u091c\u0947 \u092c\u0902\u0926 "
       "\u0939\u094b\u0924\u093e \u0939\u0948\u0964 \u090f\u0915 \u092a\u093e\u0920\u0915 \u0924\u0940\u0928 \u0915\u093f\u0924\u093e\u092c\u0947\u0902 "
       "\u0926\u094b \u0938\u092a\u094d\u0924\u093e\u0939 \u0915\u0947 \u0932\u093f\u090f \u0932\u0947 \u0938\u0915\u0924\u093e \u0939\u0948\u0964")],
    font="Lohit Devanagari", size=12)

DOCUMENTS = [ENGLISH_REPORT, CONTENTS, GERMAN_LETTER, FRENCH_NEWSLETTER, SPANISH_INVOICE, RUSSIAN_ARTICLE, ARABIC_NOTICE, CHINESE_GUIDE,
             JAPANESE_NOTE, LANDSCAPE_PLAN, PORTUGUESE_PROSE, THAI_NOTE, HINDI_NOTE]
