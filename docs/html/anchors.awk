# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Gives each heading of a page the name by which links lead to it, lets links to other documents lead to their pages, and
# writes page-N.html into `folder` for a heading "Page N: ...", and page-report.html for what a report says.

function anchorOf(heading) {
    gsub(/<[^>]*>|&[a-z]+;/, "", heading)
    heading = tolower(heading)
    gsub(/[^a-z0-9_ -]/, "", heading)
    gsub(/ /, "-", heading)
    return heading
}

function withPageLinks(line,    done, link, name) {
    while (match(line, /href="[^"#:]*\.md/)) {
        link = substr(line, RSTART, RLENGTH)
        name = link
        sub(/^href="(.*\/)?/, "", name)
        sub(/\.md$/, "", name)
        if (name == "README") name = "examples"
        done = done substr(line, 1, RSTART - 1) "href=\"" name ".html"
        line = substr(line, RSTART + RLENGTH)
    }
    return done line
}

function leadTo(anchor, page,    file) {
    file = folder "/page-" page ".html"
    printf "<!DOCTYPE html>\n<meta charset=\"utf-8\">\n" > file
    printf "<meta http-equiv=\"refresh\" content=\"0; url=guide.html#%s\">\n", anchor > file
    printf "<title>Brenica</title>\n<a href=\"guide.html#%s\">guide.html</a>\n", anchor > file
    close(file)
}

/^<!--/ { next }

/^<h[1-6]>/ {
    anchor = anchorOf($0)
    sub(/>/, " id=\"" anchor "\">")
    if (anchor ~ /^page-[0-9]/) {
        page = anchor
        gsub(/^page-|-.*/, "", page)
        leadTo(anchor, page)
    }
    if (anchor == "what-a-report-says") leadTo(anchor, "report")
}

{ print withPageLinks($0) }
