"""Tables as reports, statements and data sheets print them: several things that are hard, in one table."""
from odf import ABOVE, BELOW, Look
from traps import CLOSING, COUNTRIES, RUNNING, trap

ONE = "{:.1f}"
TWO = "{:.2f}"
BOOKED = ((0, ABOVE), (0, BELOW), (-1, BELOW))


@trap(size=9)
def cash_flows_with_signs_and_brackets(d, v):
    d.add("Consolidated statements of cash flows", bold=True, align="center", after=0)
    d.add("(in thousands)", align="center")

    def amounts(low, high, form="{:,.0f}"):
        return "|".join(v.number(low, high, form) for _ in range(3))
    d.table([8.5, 1.5, 2.3, 2.3, 2.3], [
        "|Note|2011|2010|2009",
        "Cash flows from operating activities:||||",
        f"  Net income||$\t{v.number(100, 900)}|$\t{v.number(100, 900)}|$\t{v.number(100, 900)}",
        "  Adjustments to reconcile net income to net cash provided by operating activities:||||",
        f"    Depreciation and amortization|4|{amounts(100, 900)}",
        f"    Deferred income taxes||{amounts(10, 90, '({:,.0f})')}",
        f"    Gain on sale of equipment|7|—|{v.number(10, 90, '({:,.0f})')}|—",
        f"  Net cash provided by operating activities||{amounts(1000, 9000)}",
        "Cash flows from investing activities:||||",
        f"  Purchases of property and equipment|4, 5|{amounts(100, 900, '({:,.0f})')}",
        f"  Proceeds from the sale of equipment, less costs of the sale and taxes due upon it||{amounts(10, 90)}",
        f"  Net cash used in investing activities||{amounts(100, 900, '({:,.0f})')}",
        f"Cash at end of year||$\t{v.number(1000, 9000)}|$\t{v.number(1000, 9000)}|$\t{v.number(1000, 9000)}"],
        Look(align="lcrrr", head_align="lcccc", rules=((0, BELOW), (6, BELOW), (10, BELOW), (-1, BELOW)), bold=(0,), indent_step=0.25,
             padding=0.1, padding_above=0.02))
    d.add("See accompanying notes.", italic=True, size=8)


@trap(font="Liberation Sans", size=8)
def timetable_with_dashes(d, v):
    d.add("Monday to Friday, from 12 December", bold=True, size=10)
    stops = ("Northport", "Saltash Road", "Mill Lane", "Castle Hill", "Weston Junction", "Weston Junction", "Longford", "Easthaven")
    rows = []
    for number, stop in enumerate(stops):
        times = ["" if (number + train) % 5 == 4 else f"{6 + train + number // 4:02}{(7 * number + 11 * train) % 60:02}" for train in range(8)]
        times = [time or "–" for time in times]
        rows.append("|".join((stop, "arr" if number in (4, 7) else "dep", *times)))
    d.table([3.2, 1] + [1.4] * 8, ["Train number||" + "|".join(str(1201 + 2 * train) for train in range(8)), *rows],
            Look(align="ll" + "c" * 8, head_align="ll" + "c" * 8, rules=((0, BELOW), (4, BELOW)), bold=(0,)))
    d.add("– does not call", size=7)


@trap(font="Liberation Sans", size=8)
def limits_of_a_component_in_a_grid(d, v):
    d.add("Electrical characteristics", bold=True, size=10)
    d.add("At 25 °C and a supply of 5 V, unless otherwise noted.")
    d.table([3.6, 1.6, 5, 1.4, 1.4, 1.4, 1.4], [
        "Parameter|Symbol|Test conditions|Limits|<|<|Unit",
        "^|^|^|Min.|Typ.|Max.|^",
        "Input offset voltage|VOS|Full range|—|0.5|2|mV",
        "Input bias current|IB|TA = 25 °C|—|20|80|nA",
        "^|^|Full range|—|—|120|^",
        "Output swing|VO|RL = 10 kΩ|±12|±14|—|V",
        "^|^|RL = 2 kΩ|±10|±13|—|^",
        "^|^|RL = 600 Ω, VS = ±5 V|±2.5|±3.2|—|^",
        "Supply current|IS|No load|—|1.7|2.8|mA",
        "Package thermal resistance, junction to ambient|θJA|SO-8|—|155|—|°C/W",
        "^|^|DIP-8|—|103|—|^"],
        Look(head=2, align="lclrrrc", head_align="ccccccc", grid=True, upright="middle", bold=(0, 1)))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def limits_of_a_component_with_rules_between_groups(d, v):
    d.add("Switching characteristics", bold=True, size=10)
    d.table([5.2, 1.8, 4.8, 1.4, 1.4, 1.4, 1.4], [
        "Parameter|Symbol|Conditions|Min|Typ|Max|Unit",
        "Rise time|tr|CL = 50 pF||6|12|ns", "Fall time|tf|CL = 50 pF||5|10|ns",
        "Propagation delay|tPLH|Input to output||14|25|ns", "|tPHL|||16|27|ns",
        "Clock frequency|fCLK|50 % duty cycle|20|35||MHz", "Set-up time|tS||8|||ns", "Hold time|tH||3|||ns"],
        Look(align="lclrrrc", head_align="lclrrrc", bold=(0,), rules=((0, ABOVE), (0, BELOW), (2, BELOW), (4, BELOW), (-1, BELOW)),
             padding=0.1, padding_above=0.05))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=7.5, landscape=True)
def heads_of_several_lines_spanned_without_rules(d, v):
    d.add("Table 4. Population by economic activity, status in employment and region, persons aged 15 and over", bold=True, size=9)
    d.table([4] + [2.1] * 9, [
        "|Total|Economically active population|<|<|<|<|Not economically active|<|<",
        "Region||All//active|Employees in the//public sector|Employees in the//private sector|Self-//employed|Un-//employed|Total|"
        "Pupils and//students|Other",
        *(f"{region}|{v.row(9, 1000, 900000)}" for region in (
            "Northern provinces", "Coast", "Capital district", "Eastern highlands", "Southern provinces", "Islands", "Whole country"))],
        Look(head=2, bold=(-1,), padding=0.08))
    d.add("Source: census of population, final results.", size=7)


@trap(font="Liberation Serif", size=9, columns=2)
def table_between_caption_and_note_in_a_column(d, v):
    d.add(RUNNING)
    d.add("Table 2: Mean scores of the two groups before and after training.", size=8, bold=True)
    d.table([2.9, 1.25, 1.25, 1.25, 1.25], [
        "|Before|<|After|<", "Test|Mean|SD|Mean|SD",
        *(f"{test}|{v.row(4, 1, 60, ONE)}" for test in ("Digit span", "Stroop", "Trail making A", "Trail making B", "Verbal fluency"))],
        Look(head=2, size=8, rules=((0, ABOVE), (1, BELOW), (-1, BELOW)), span_rules=(0,)))
    d.add("Note. Higher scores are better, but for trail making. SD = standard deviation.", size=7)
    d.add(RUNNING + " " + CLOSING)
    d.add(CLOSING + " " + RUNNING + " " + RUNNING)


@trap(font="Liberation Sans", size=8)
def columns_without_any_entry(d, v):
    d.add(RUNNING)
    d.table([3.4] + [1.7] * 7, [
        "District|Total|Cattle|Sheep|Goats|Pigs|Horses|Camels",
        *(f"{name}|{v.row(3, 10, 9000)}||{v.number(1, 90)}|{v.number(1, 90)}|"
          for name in ("Upper valley", "Lower valley", "Plain", "Lake shore", "Hills", "Town"))],
        Look(grid=True, bold=(0,)))
    d.add(CLOSING)


@trap(font="Carlito", size=10)
def stripes_with_wrapped_texts(d, v):
    d.add(RUNNING)
    rows = ["Action|Responsible|Due|Status",
            "Publish the register of licences on the website of the authority|Registrar|31 March|Done",
            "Agree with the three universities on a shared archive and on who pays for it|Director of collections, with the finance office|30 June|In progress",
            "Train staff|Human resources|30 June|Done",
            "Replace the heating in the north wing before the next winter begins|Buildings office|15 October|Delayed: tender to be repeated",
            "Report to the board|Director|1 December|Open"]
    d.table([7, 4, 2.4, 3.4], rows, Look(align="llll", bold=(0,), fill={0: "#1f4e79", 1: "#ddebf7", 3: "#ddebf7", 5: "#ddebf7"}, padding=0.12))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=9)
def three_small_tables_in_three_columns(d, v):
    d.add("Key figures by region", bold=True, size=12)

    def part(title, low):
        def add():
            d.add(title, bold=True, after=0.05)
            d.table([2.7, 1.2, 1.2], ["|2010|2011", *v.rows(("Births", "Deaths", "Marriages", "Divorces"), 2, low, 900)],
                    Look(rules=BOOKED))
        return add
    d.in_columns(3, part("North", 10), part("Centre", 100), part("South", 100))
    d.add(RUNNING)


@trap(font="Liberation Sans", size=10)
def month_as_a_calendar(d, v):
    d.add("May 2012", bold=True, size=14, align="center")
    days = [""] + [str(day) for day in range(1, 32)] + [""] * 3
    weeks = ["|".join(days[week * 7:week * 7 + 7]) for week in range(5)]
    d.table([2.2] * 7, ["Mon|Tue|Wed|Thu|Fri|Sat|Sun", *weeks], Look(align="c" * 7, head_align="c" * 7, bold=(0,), padding=0.15))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=9)
def questions_of_several_lines_with_shares(d, v):
    d.add("Answers to the survey of patients, in per cent", bold=True)
    questions = ("How satisfied were you with the time that you had to wait before you were seen by a doctor?",
                 "Were you told about the risks of the treatment?",
                 "Did the staff explain, in a way that you could understand, how to take the medicines that you were given to take home?",
                 "Was the ward clean?", "Would you recommend this hospital to your friends and family if they needed similar care?")
    d.table([8.5, 1.9, 1.9, 1.9, 1.9], ["|Very|Rather|Not really|Not at all", *(f"{question}|{v.row(4, 1, 60)}" for question in questions)],
            Look(bold=(0,), head_align="lrrrr", padding=0.1, padding_above=0.1, upright="bottom"))
    d.add(CLOSING)


@trap(font="Carlito", size=10)
def properties_and_long_values(d, v):
    d.add("General properties", bold=True, size=12)
    d.table([4.5, 8.5], [
        "Molecular formula|C16H18N3ClS",
        "Appearance|Dark green crystals with a bronze lustre, or a crystalline powder, without odour and stable in air",
        "Melting point|Decomposes between 100 °C and 110 °C",
        "Solubility|One gram dissolves in about 25 ml of water and in about 65 ml of alcohol; the solutions are deep blue",
        "Storage|In tight containers",
        "Use|Stain for the microscope; indicator of reduction and oxidation in analysis; antidote in cases of poisoning by nitrates"],
        Look(align="ll", head=0, padding=0.1, padding_above=0.12))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=9)
def fields_of_a_record_in_two_pairs(d, v):
    d.add("Sample record", bold=True, size=12)
    d.table([3, 5, 3, 5], [
        "Sample no.:|2011/0417|Received:|14 June 2011", "Client:|Harbour Board of Longford|Analysed:|16 June 2011",
        "Site:|Outfall 3, below the weir|Analyst:|M. Ferreira", "Matrix:|Sediment|Method:|EN 13656", "Depth:|0.2 m|Checked by:|T. Lindqvist"],
        Look(align="llll", head=0, padding=0.1))
    d.add(RUNNING)


@trap(font="Liberation Serif", size=9)
def correlations_below_the_diagonal(d, v):
    d.add("Table 3. Means, standard deviations and correlations", italic=True)
    names = ("Age", "Tenure", "Workload", "Autonomy", "Support", "Strain")
    rows = []
    for number, name in enumerate(names):
        cells = [v.number(0, 0.9, "{:.2f}**").replace("0.", ".") for _ in range(number)] + ["–"] + [""] * (len(names) - number - 1)
        rows.append(f"{number + 1}. {name}|{v.row(2, 1, 50, TWO)}|" + "|".join(cells))
    d.table([4] + [1.4] * 8, ["Variable|M|SD|" + "|".join(str(number + 1) for number in range(6)), *rows],
            Look(align="l" + "c" * 8, head_align="l" + "c" * 8, rules=BOOKED))
    d.add("** p < .01", size=8)


@trap(font="Carlito", size=9)
def prices_under_titles_without_rules(d, v):
    d.add("Price list", bold=True, size=13)
    d.table([2.2, 9.5, 2, 2.4], [
        "Order no.|Article|Unit|Price (€)",
        "Hand tools|||",
        f"10-221|Claw hammer, 450 g, handle of ash|piece|{v.number(5, 30, TWO)}",
        f"10-305|Set of screwdrivers, slotted and cross-head, with insulated shafts that are tested to 1,000 volts|set of 6|{v.number(5, 30, TWO)}",
        f"10-310|Folding rule|piece|{v.number(1, 9, TWO)}",
        "Fasteners|||",
        f"22-001|Wood screws 4 × 40 mm, galvanised|100|{v.number(1, 9, TWO)}",
        f"22-018|Wall plugs|50|{v.number(1, 9, TWO)}"],
        Look(align="lllr", head_align="lllr", bold=(0, 1, 5), padding=0.1, padding_above=0.04))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def numbers_and_percents_under_years(d, v):
    d.add("Table 1-5. Employees by age, sex and grade", bold=True, size=9)

    def pair(low, high):
        return f"{v.number(low, high)}|{v.number(1, 99, '{:.1f}%')}"
    rows = []
    for group in (("Sex", "Men", "Women"), ("Age", "Under 30", "30 to 44", "45 to 59", "60 and over"), ("Grade", "Junior", "Senior", "Executive")):
        rows.append(f"{group[0]}||||||")
        rows += [f"  {name}|{pair(1000, 90000)}|{pair(1000, 90000)}|{pair(1000, 90000)}" for name in group[1:]]
    d.table([5] + [1.9, 1.6] * 3, ["|2000|<|2005|<|2010|<", "Characteristic|Number|Percent|Number|Percent|Number|Percent", *rows],
            Look(head=2, rules=((0, ABOVE), (1, BELOW), (-1, BELOW)), span_rules=(0,), leaders=True, bold=(0, 1)))
    d.add("Source: personnel records.", size=7)


@trap(font="Liberation Sans", size=9)
def standings_without_rules(d, v):
    d.add("Final standings", bold=True, size=12)
    clubs = ("Athletic Northport", "Castle Hill", "City of Weston", "Easthaven United", "Longford Rangers", "Mill Lane", "Saltash Town")
    d.table([1, 5.5] + [1.2] * 5 + [1.6], ["|Club|P|W|D|L|F–A|Pts",
            *(f"{number + 1}|{club}|12|{9 - number}|{number % 3}|{number}|{30 - 2 * number}–{11 + number}|{27 - 3 * number}"
              for number, club in enumerate(clubs))],
            Look(align="rl" + "r" * 6, head_align="rl" + "r" * 6, bold=(0,), padding=0.1))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def texts_and_dates_with_a_row_over_two_lines(d, v):
    d.add("Table 9. Projects approved in the second quarter", bold=True, size=9)
    d.table([1.6, 6.5, 3, 2.2, 2.4], [
        "Number|Title|Country|Approved|Amount (US$ thousand)",
        f"P-1102|Rural roads, phase II|{COUNTRIES[1]}|04/12/2011|{v.number(100, 9000)}",
        f"P-1107|Strengthening of the statistical system and of its regional offices|{COUNTRIES[9]}|04/19/2011|{v.number(100, 9000)}",
        f"P-1111|Water supply of four towns|{COUNTRIES[16]}|05/03/2011|{v.number(100, 9000)}",
        f"P-1115|Credit line for small and medium-sized enterprises in areas hit by the drought of the year before|{COUNTRIES[21]}|05/24/2011|{v.number(100, 9000)}",
        f"P-1120|Schools|{COUNTRIES[22]}|06/30/2011|{v.number(100, 9000)}",
        f"|Total|||{v.number(10000, 90000)}"],
        Look(align="lllcr", head_align="lllcr", rules=((0, ABOVE), (0, BELOW), (-1, ABOVE), (-1, BELOW))))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def labels_of_rows_and_columns_that_span(d, v):
    d.add(RUNNING)
    d.table([2.6, 3.2] + [1.8] * 6, [
        "Type of school|Sex|Pupils|<|<|Teachers|<|<",
        "^|^|2009|2010|2011|2009|2010|2011",
        *(f"{name if sex == 'Boys' else '^'}|{sex}|{v.row(3, 100, 9000)}|{v.row(3, 10, 900)}"
          for name in ("Primary", "General secondary", "Vocational") for sex in ("Boys", "Girls", "Together"))],
        Look(head=2, rules=((0, ABOVE), (1, BELOW), (4, BELOW), (7, BELOW), (-1, BELOW)), span_rules=(0,), align="llrrrrrr"))
    d.add(CLOSING)
