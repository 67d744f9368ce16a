"""Tables that stand in hard places: in columns, beside each other, over pages, set with tabs, in small type, on coloured grounds."""
from odf import ABOVE, BELOW, Look, Tab
from traps import CLOSING, COUNTRIES, RUNNING, trap

BOOKED = ((0, ABOVE), (0, BELOW), (-1, BELOW))
ONE, TWO = "{:.1f}", "{:.2f}"
INDUSTRIES = ("Total nonfarm", "  Goods-producing",
              "    Mining and logging", "    Construction", "    Manufacturing",
              "      Durable goods", "      Nondurable goods", "  Service-providing", "    Retail trade", "    Utilities", "    Information")


@trap(columns=2, size=9)
def tables_in_a_page_of_two_columns(d, v):
    d.add("3. Results", bold=True, size=11)
    d.add(RUNNING)
    d.add("Table 3. Catch by gear", bold=True)
    gears = v.rows(("Trawl", "Seine", "Gill net", "Longline", "Pots"), 3, 10, 900, ONE)
    d.table([3, 1.6, 1.6, 1.6], ["Gear|2007|2008|2009", *gears], Look(rules=BOOKED))
    for text in (CLOSING, RUNNING, CLOSING):
        d.add(text)
    d.add("Table 4. Fleet by port", bold=True)
    ports = v.rows(("Aveiro", "Bergen", "Cádiz", "Dieppe", "Esbjerg"), 3, 10, 9000)
    d.table([3, 1.6, 1.6, 1.6], ["Port|Vessels|GT|kW", *ports], Look(bold=(0,)))
    for text in (RUNNING, CLOSING, RUNNING):
        d.add(text)


@trap(columns=2, size=9)
def table_of_texts_in_one_of_two_columns(d, v):
    d.add("4. Measures", bold=True, size=11)
    d.add(RUNNING)
    d.table([2.2, 5.6], [
        "Term|Meaning",
        "Catch|All fish brought on board, landed or not",
        "Discard|Fish returned to the sea, dead or alive, for whatever reason",
        "Effort|Days at sea times engine power"], Look(align="ll", rules=BOOKED, padding_above=0.06))
    for text in (CLOSING, RUNNING, CLOSING, RUNNING, CLOSING):
        d.add(text)


@trap(font="Liberation Sans", size=8)
def two_tables_beside_each_other(d, v):
    d.add(RUNNING)

    def left():
        d.add("Table 8a. Exports", bold=True)
        d.table([3.6, 2, 2], ["Partner|2008|2009", *v.rows(COUNTRIES[:6], 2, 10, 900)], Look(rules=BOOKED))

    def right():
        d.add("Table 8b. Imports", bold=True)
        d.table([3.6, 2, 2], ["Partner|2008|2009", *v.rows(COUNTRIES[6:12], 2, 10, 900)], Look(rules=BOOKED))
    d.in_columns(2, left, right)
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def one_table_folded_into_two_halves(d, v):
    d.add(RUNNING)
    halves = zip(v.rows(COUNTRIES[:8], 2, 10, 90, ONE), v.rows(COUNTRIES[8:16], 2, 10, 90, ONE))
    d.table([3.2, 1.8, 1.8, 0.6, 3.2, 1.8, 1.8], ["Country|Men|Women||Country|Men|Women", *("||".join(half) for half in halves)],
            Look(align="lrrrlrr", bold=(0,)))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def shaded_rows_instead_of_rules(d, v):
    d.add(RUNNING)
    permits = ("Asylum", "Family reunion", "Study", "Seasonal work", "Highly skilled work", "Research", "Long-term residence")
    d.table([5, 2.4, 2.4, 2.4, 2.4], ["Activity|Applications|Approved|Refused|Pending", *v.rows(permits, 4, 1, 9000)],
            Look(fill={row: "#e4ecf4" for row in (1, 3, 5, 7)}, bold=(0,), padding_above=0.08))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def shaded_rows_of_texts(d, v):
    d.add(RUNNING)
    d.table([3.5, 6, 6], [
        "Risk|Cause|Answer",
        "Delay of works|Permits are granted later than planned because surveys are incomplete|Monthly review with the authorities",
        "Rising costs|Prices of steel and fuel|Fixed price contracts, and a reserve of five per cent of the total",
        "Lack of staff|Retirement|Training of juniors"],
        Look(align="lll", fill={0: "#24406a", 2: "#eeeeee"}, padding=0.15))
    d.add(CLOSING)


@trap(size=6.5, font="Liberation Sans")
def small_type_with_many_columns(d, v):
    d.add("Table B-4. Employment by industry, seasonally adjusted (in thousands)", bold=True, size=9)
    months = "Oct. 2008|Nov. 2008|Dec. 2008|Jan. 2009|Feb. 2009|Mar. 2009|Apr. 2009|May 2009"
    d.table([4.2] + [1.55] * 8, ["Industry|" + months, *v.rows(INDUSTRIES, 8, 10, 140000, "{:,.1f}")],
            Look(rules=BOOKED, padding=0.03, padding_above=0))
    d.add("p Preliminary.", size=6)
    d.add(RUNNING, size=9)


@trap(size=6.5, font="Liberation Sans")
def small_type_without_rules(d, v):
    d.add(RUNNING, size=9)
    d.table([4.2] + [1.5] * 8, ["Industry|2002|2003|2004|2005|2006|2007|2008|2009", *v.rows(INDUSTRIES, 8, 10, 140000, "{:,.1f}")],
            Look(padding=0.03, padding_above=0))
    d.add(CLOSING, size=9)


@trap(size=11)
def tabs_with_right_numbers(d, v):
    d.add(RUNNING)
    sources = v.rows(("Grants awarded", "Loans", "Guarantees", "Equity", "Total"), 3, 10, 9000)
    d.tabbed([Tab(8), Tab(11), Tab(14)], ["Category|2007|2008|2009", *sources], bold=(0,))
    d.add(CLOSING, before=0.4)


@trap(size=10)
def tabs_with_texts(d, v):
    d.add(RUNNING)
    d.tabbed([Tab(4.5, "left"), Tab(9, "left"), Tab(13.5, "left")], [
        "Name|Office|Term|Constituency",
        "A. Moreau|Chair|2007–2010|North", "B. Lindqvist|Deputy chair|2007–2010|Islands", "C. Papadakis|Treasurer|2008–2011|South",
        "D. Novak|Member|2009–2012|Centre", "E. Byrne|Member|2009–2012|West"], bold=(0,))
    d.add(CLOSING, before=0.4)


@trap(size=10)
def tabs_with_leaders_and_two_numbers(d, v):
    d.add("Sources of funds", bold=True)
    sources = v.rows(("Contributions of members", "Fees and charges", "Interest", "Sale of publications", "Other"), 2, 10, 9000)
    d.tabbed([Tab(10, leader=True), Tab(13), Tab(16)], ["|Actual|Planned", *sources])
    d.add(RUNNING, before=0.4)


@trap(size=10)
def rules_at_top_middle_and_bottom(d, v):
    d.add(RUNNING)
    d.add("Table 2: Summary statistics", align="center")
    variables = [f"{name}|{v.row(2, 0, 90, TWO)}|{v.number(0, 1, TWO)}|{v.number(90, 900, TWO)}|{v.number(100, 999)}"
                 for name in ("Age", "Schooling", "Household size", "Distance", "Income")]
    d.table([3.6, 1.6, 1.6, 1.6, 1.6, 1.6], ["Variable|Mean|S.D.|Min.|Max.|N", *variables],
            Look(place="center", rules=BOOKED, head_align="lccccc"))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=9)
def narrow_table_of_two_columns(d, v):
    d.add(RUNNING)
    d.add("Table 14. Consumer complaints by region", bold=True)
    regions = v.rows(("North", "South", "East", "West", "Islands", "Abroad"), 1, 10, 9000)
    d.table([4, 2], ["Region|Complaints", *regions, "Total|24,816"], Look(rules=(*BOOKED, (-1, ABOVE))))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=9)
def narrow_table_without_rules(d, v):
    d.add(RUNNING)
    quarters = [f"Q{quarter} {year}|{v.number(10, 9000)}|{v.number(80, 120, ONE)}" for year in (2008, 2009) for quarter in (1, 2, 3, 4)]
    d.table([4, 2, 2], ["Quarter|Orders|Index", *quarters], Look(indent=2))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def notes_close_below_without_a_rule(d, v):
    d.add(RUNNING)
    ages = [f"{age}|{v.number(10, 900)}|{v.number(1, 90, ONE)}|{v.number(1, 9, ONE)}–{v.number(10, 90, ONE)}"
            for age in ("0–4", "5–14", "15–44", "45–64", "65+")]
    d.table([4, 2.4, 2.4, 2.4], ["Age group|Cases|Rate|95% CI", *ages], Look(bold=(0,), padding_above=0.02))
    d.add("Note: Rates are per 100,000 population and are standardised for age.", size=8, after=0)
    d.add("Source: Infectious disease register.", size=8)
    d.add(CLOSING)


@trap(font="Liberation Sans", size=9)
def table_over_two_pages_without_rules(d, v):
    for _ in range(6):
        d.add(RUNNING)
    d.table([5, 2.5, 2.5, 2.5], ["Country|2007|2008|2009", *v.rows(COUNTRIES, 3, 100, 9000)], Look(padding_above=0.12, bold=(0,)))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=9)
def text_grid_over_two_pages(d, v):
    for _ in range(5):
        d.add(RUNNING)
    mandates = (RUNNING.split(". ")[0] + ".", CLOSING.split(". ")[1], "Coordination.") * 5
    agencies = [f"Agency {number}|{country}|{text}" for number, (country, text) in enumerate(zip(COUNTRIES[:14], mandates), 1)]
    d.table([4, 4, 9], ["Body|Seat|Mandate", *agencies], Look(align="lll", grid=True, bold=(0,), padding=0.1))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def rules_between_columns_and_below_the_head(d, v):
    d.add(RUNNING)
    states = v.rows(("Maine", "Vermont", "New Hampshire", "Massachusetts", "Rhode Island"), 4, 1, 900)
    d.table([4, 2.2, 2.2, 2.2, 2.2], ["State|Awards|<|Funds|<", "^|2008|2009|2008|2009", *states],
            Look(head=2, rules=((0, ABOVE), (1, BELOW), (-1, BELOW)), columns_ruled=(1, 3), span_rules=(0,)))
    d.add(CLOSING)
