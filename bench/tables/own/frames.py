"""Tables whose rules say little: a frame only, some of the columns, a double line, grounds; and rows that look alike though they differ."""
from odf import ABOVE, BELOW, Look
from traps import CLOSING, COUNTRIES, RUNNING, trap

ONE = "{:.1f}"
BOOKED = ((0, ABOVE), (0, BELOW), (-1, BELOW))


@trap(font="Liberation Sans", size=9)
def frame_around_rows_without_rules(d, v):
    d.add(RUNNING)
    funds = v.rows(("Cohesion", "Solidarity", "Globalisation", "Fisheries", "Rural"), 3, 10, 9000)
    d.table([5, 2.5, 2.5, 2.5], ["Fund|2007|2008|2009", *funds],
            Look(rules=((0, ABOVE), (-1, BELOW)), columns_ruled=(0, 4), bold=(0,)))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def rules_between_all_columns_and_at_the_head(d, v):
    d.add("Table II-3. Milk deliveries by month", bold=True)
    d.table([3] + [1.8] * 7, [
        "Month|Bavaria|Saxony|Hesse|Berlin|Bremen|Hamburg|Total",
        *v.rows(("January", "February", "March", "April", "May", "June", "July"), 7, 10, 9000)],
        Look(rules=BOOKED, columns_ruled=tuple(range(1, 8)), head_align="lccccccc"))
    d.add(RUNNING)


@trap(size=10)
def dates_texts_and_amounts_without_rules(d, v):
    d.add(RUNNING)
    d.table([2.6, 8.5, 3], [
        "Date|Event|Cost",
        "3 March 2008|Signing of the agreement by the three parties|—",
        "17 June 2008|Opening of the first office, with a staff of twelve, in rooms that the city lent for two years|240,000",
        "1 May 2009|First annual report|12,500",
        "30 November 2009|Evaluation by an outside body, which advised to close the second office|88,000"],
        Look(align="llr", bold=(0,), padding=0.12, padding_above=0.08))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def numbers_with_shares_in_brackets(d, v):
    d.add(RUNNING)
    d.table([5, 3, 3, 3], [
        "Characteristic|Cases (n = 240)|Controls (n = 480)|All",
        *(f"{name}|" + "|".join(f"{v.number(1, 240)} ({v.number(1, 99, ONE)})" for _ in range(3))
          for name in ("Male", "Smoker", "Born abroad", "Aged 65 or over", "Lives alone"))],
        Look(head_align="lccc", align="lccc", rules=BOOKED))
    d.add("Values are numbers (percent).", size=7)
    d.add(CLOSING)


@trap(font="Liberation Sans", size=9)
def totals_first_in_bold(d, v):
    d.add("Table 17: Road freight, by destination (million tonne-km)", bold=True)
    d.table([4] + [2] * 5, [
        "|2005|2006|2007|2008|2009",
        f"EU-27|{v.row(5, 10000, 99000)}", *v.rows(COUNTRIES[:9], 5, 100, 9000)],
        Look(rules=((0, BELOW), (1, BELOW), (-1, BELOW)), bold=(0, 1)))
    d.add("Source: Eurostat (online data code: road_go)", size=8, italic=True)
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def heads_over_pairs_with_blank_columns_between(d, v):
    d.add(RUNNING)
    d.table([4, 1.9, 1.9, 0.4, 1.9, 1.9, 0.4, 1.9, 1.9], [
        "|Men|<||Women|<||Both|<",
        "Age|Number|Rate||Number|Rate||Number|Rate",
        *("||".join(f"{label}{v.number(10, 9000)}|{v.number(1, 99, ONE)}" for label in (f"{age}|", "", ""))
          for age in ("Under 15", "15–24", "25–44", "45–64", "65 and over"))],
        Look(head=2, rules=((0, ABOVE), (1, BELOW), (-1, BELOW)), span_rules=(0,)))
    d.add(CLOSING)


@trap(size=9)
def statement_with_sums_ruled_off(d, v):
    d.add("Statement of financial position", bold=True, align="center")
    d.table([8, 3, 3], [
        "|31 March 2010|31 March 2009",
        "Assets||", "  Cash|1,204|1,150", "  Receivables|880|790", "|2,084|1,940",
        "Liabilities||", "  Payables|410|402", "  Deferred revenue|120|98", "|530|500", "Net assets|1,554|1,440"],
        Look(cell_rules=((3, 1), (3, 2), (7, 1), (7, 2), (9, 1), (9, 2)), bold=(0, 1, 5, 9)))
    d.add(RUNNING)


@trap(font="Carlito", size=9)
def list_of_places_in_four_columns_of_texts(d, v):
    d.add(RUNNING)
    d.table([3.5, 3.5, 5, 4.5], [
        "Region|Town|Address|Opening hours",
        "North|Aalborg|Havnegade 12|Mon–Fri 9–16", "North|Viborg|Sct. Mathias Gade 3, 2nd floor|Mon, Wed, Fri 10–14",
        "East|Ringsted|Torvet 1|Tue 12–18", "East|Roskilde|Algade 22|Mon–Fri 9–16", "South|Odense|Vestergade 70|Mon–Thu 9–15"],
        Look(align="llll", rules=((0, BELOW),), bold=(0,)))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=7)
def rows_shaded_by_groups_with_two_line_heads(d, v):
    d.add("Figure 3: Inspections and penalties by sector", bold=True, size=9)
    d.table([4.5] + [1.7] * 6, [
        "Sector|Establish-//ments|Inspec-//tions|Serious//violations|Repeat//violations|Penalties//(thousands)|Average//(dollars)",
        *v.rows(("Construction", "Manufacturing", "Wholesale trade", "Retail trade", "Transportation", "Services"), 6, 1, 9000)],
        Look(fill={0: "#c6d9f1", 3: "#eeeeee", 4: "#eeeeee"}, head_align="lcccccc"))
    d.add(RUNNING, size=9)


@trap(font="Liberation Sans", size=8)
def minus_signs_apart_and_plus_signs(d, v):
    d.add(RUNNING)
    d.table([5, 2, 2, 2, 2], [
        "Sector|Q1|Q2|Q3|Q4",
        *(f"{name}|+ {v.number(0, 9, ONE)}|– {v.number(0, 9, ONE)}|{v.number(0, 9, ONE)}|– {v.number(10, 99, ONE)}"
          for name in ("Industry", "Construction", "Retail", "Services", "Consumers"))],
        Look(rules=BOOKED))
    d.add(CLOSING)


@trap(size=10)
def short_table_of_two_rows(d, v):
    d.add(RUNNING)
    d.table([4, 2.5, 2.5, 2.5, 2.5], ["|2006|2007|2008|2009", *v.rows(("Applications", "Grants"), 4, 100, 9000)])
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8, columns=2)
def three_small_tables_in_two_columns(d, v):
    for number, name in enumerate(("Births", "Deaths", "Marriages"), 1):
        d.add(RUNNING)
        d.add(f"Table {number}. {name}", bold=True)
        regions = v.rows(("North", "Centre", "South", "Islands"), 3, 10, 9000)
        d.table([3, 1.5, 1.5, 1.5], ["Region|2007|2008|2009", *regions], Look(rules=BOOKED))
        d.add(CLOSING)


@trap(size=10)
def filled_head_without_a_rule_below(d, v):
    d.add(RUNNING)
    d.table([3, 3, 3, 3, 3], [
        "Planned|Earned|Spent|Schedule|Cost",
        "Hours a week|Hours a week|Money|Index|Index"],
        Look(align="lllll", fill={0: "#999999"}, rules=((0, ABOVE), (-1, BELOW)), columns_ruled=(0, 1, 2, 3, 4, 5)))
    d.add(CLOSING)


@trap(size=10)
def many_rows_of_texts_in_one_drawn_row(d, v):
    d.add(RUNNING)
    d.table([3, 8], [
        "Unit|What it is",
        *(f"{unit}|{meaning}" for unit, meaning in (
            ("acre", "a field that a pair of oxen plough in one day"), ("bushel", "eight gallons of grain"),
            ("chain", "the length of a cricket pitch"), ("dram", "a little drink"), ("ell", "six hands of cloth"),
            ("furlong", "as long as a furrow"), ("gill", "a quarter of a pint"), ("hand", "the height of horses")))],
        Look(align="ll", rules=((0, ABOVE), (0, BELOW), (-1, BELOW)), columns_ruled=(0, 1, 2)))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=10)
def broad_borders_around_low_cells(d, v):
    d.add(RUNNING)
    d.table([2.6, 2.6, 2.6, 2.6], ["Shift|First|Second|Third", "Looms|12|14|9", "Hands|30||22"], Look(grid=True, rule_width=6, align="lrrr"))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=10)
def filled_label_spans_the_rows_below_a_filled_head(d, v):
    d.add("Work done", bold=True)
    for year, place, task, tools in (
            ("May 2009 to June 2010", "River Works", "Two locks, and the weir above them", "Chisels, a saw and ropes that the harbour lent for as long as the work was under way"),
            ("July 2010", "Town Hall", "The clock in the tower", "None but those that hung in the tower")):
        d.table([3, 3, 9], [f"{year}|{place}|<", f"^|Task :|{task}", f"^|Tools :|{tools}", "^|Result :|Done in time"],
                Look(align="lll", head_align="lll", head=0, fill={0: "#BBBBBB"}, fill_columns={0: "#BBBBBB"}, upright="top",
                     padding=0.1, padding_above=0.05))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=10)
def filled_labels_beside_texts_of_several_lines(d, v):
    d.add(RUNNING)
    d.table([3, 9], [
        "Room|What it is for",
        "Attic|Whatever nobody wants to have and nobody dares to throw away, for as long as there is room under the roof",
        "Cellar|Wine, and apples over the winter",
        "Hall|Coats and hats, and in the time of the fair the boxes of those who come to sell what they have made"],
        Look(align="ll", fill={0: "#888888"}, fill_columns={0: "#DDDDDD"}, upright="top", padding=0.1, padding_above=0.05))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=10)
def texts_of_two_lines_side_by_side_in_a_drawn_cell(d, v):
    d.add(RUNNING)
    d.table([3, 2.4, 2.4, 2.4, 2.4], [
        "Boat|Shared//1 to 3|Shared//4 to 12|Shared//13 to 20|Alone//any day", "^|price of a seat|<|<|price", "Ferry|115|210|370|760"],
        Look(align="lcccc", head=2, head_align="lcccc", rules=((0, ABOVE), (0, BELOW), (1, BELOW), (2, BELOW)), columns_ruled=(0, 1, 5)))
    d.add(CLOSING)
