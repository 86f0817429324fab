-- Pages that are put together into one refer to each other by file name; here a link becomes one within the page,
-- and where it leads to a page that is left out, only its text stays. Each page begins with its one heading of
-- the first level, so the n-th of these belongs to the n-th file.
function Pandoc(document)
    local titles = {}
    for _, block in ipairs(document.blocks) do
        if block.t == "Header" and block.level == 1 then
            table.insert(titles, block.identifier)
        end
    end
    local files = PANDOC_STATE.input_files
    if #titles ~= #files then
        error(#files .. " pages have " .. #titles .. " headings of the first level")
    end
    local titleOf = {}
    for i, file in ipairs(files) do
        titleOf[file:match("[^/]+$")] = titles[i]
    end
    return document:walk({
        Link = function(link)
            local page, section = link.target:match("^([%w_/]+%.md)(.*)$")
            if not page then
                return nil
            end
            local title = titleOf[page:match("[^/]+$")]
            if not title then
                return link.content
            end
            link.target = section ~= "" and section or "#" .. title
            return link
        end,
    })
end
